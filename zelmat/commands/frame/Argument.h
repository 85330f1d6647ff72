#pragma once

#include <string>
#include <vector>

namespace CLI {
class Option;
}

namespace zelmat {

/// One argument or option that was added to Arguments: says what it may hold. A handle, good as long as
/// those.
class Argument {
public:
    explicit Argument(CLI::Option& option) : option_(&option) {}

    const Argument& Required() const;
    const Argument& OneOf(const std::vector<std::string>& words) const;  ///< help shows the words
    const Argument& Within(int least, int most) const;
    const Argument& NotEmpty(
        const std::string& mistake) const;                  ///< an empty text is refused with this sentence
    const Argument& Excludes(const Argument& other) const;  ///< both together are a mistake
    const Argument& Needs(const Argument& other) const;

    const Argument& AtCommas() const;  ///< several values may stand in one word, with commas between
    const Argument& NoneOrMore(bool& given) const;  ///< it may stand without a value; whether it stands there

    const Argument& NamedInHelp(const std::string& value) const;  ///< what help calls its value
    const Argument& ShowsDefault() const;  ///< help shows what its variable holds by now
    const Argument& ShowsDefault(const std::string& text) const;

private:
    CLI::Option* option_;
};

}  // namespace zelmat
