#include "zelmat/text/XmlText.h"

#include <gtest/gtest.h>

#include "tests/zelmat/support/XmlProblem.h"

namespace {

using zelmat::XmlText;

TEST(XmlText, WritesMarkupAsReferences) {
    EXPECT_EQ(XmlText("<script>\"a\" & 'b'</script>"),
              "&lt;script&gt;&quot;a&quot; &amp; &#39;b&#39;&lt;/script&gt;");
    EXPECT_EQ(XmlText("]]>"), "]]&gt;");
    EXPECT_EQ(XmlText("Stahl, größer als 0 °C"), "Stahl, größer als 0 °C");
    EXPECT_EQ(XmlText(""), "");
}

TEST(XmlText, ShowsControlCharactersAndTurnsOfDirection) {
    EXPECT_EQ(XmlText(std::string("a\0b\x1b[31m\n\x7f", 10)), "a\\x00b\\x1b[31m\\n\\x7f");
    EXPECT_EQ(XmlText("\xe2\x80\xae"
                      "abc"),
              "\\u202eabc");
    EXPECT_EQ(XmlText("فولاذ"), "فولاذ") << "letters that run from right to left are letters";
}

TEST(XmlText, ReplacesWhatIsNoCharacter) {
    EXPECT_EQ(XmlText("a\xff\xfe"), "a\xef\xbf\xbd\xef\xbf\xbd");
    EXPECT_EQ(XmlText("\xef\xbf\xbe|\xef\xbf\xbf|\xef\xb7\x90"), "\xef\xbf\xbd|\xef\xbf\xbd|\xef\xbf\xbd");
    EXPECT_EQ(XmlText("\xf0\x9f\xbf\xbe"), "\xef\xbf\xbd") << "U+1FFFE";
}

TEST(XmlText, IsWellFormedForEveryPairOfBytes) {
    std::string document = "<a b=\"";
    for (int first = 0; first < 256; ++first) {
        for (int second = 0; second < 256; second += 5) {
            document += XmlText(std::string{static_cast<char>(first), static_cast<char>(second)});
        }
    }
    EXPECT_EQ(XmlProblem(document + "\"/>"), "");
    EXPECT_NE(XmlProblem(document + "<\"/>"), "") << "the parser is strict";
}

}  // namespace
