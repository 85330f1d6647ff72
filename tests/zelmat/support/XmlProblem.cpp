#include "tests/zelmat/support/XmlProblem.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

std::string XmlProblem(const std::string& text) {
    const std::string path = testing::TempDir() + "xml-" + std::to_string(getpid());
    std::ofstream(path, std::ios::binary) << text;
    const int status = std::system(("xmllint --nonet --noout '" + path + "' 2>'" + path + ".err'").c_str());
    std::ifstream file(path + ".err", std::ios::binary);
    std::string said(std::istreambuf_iterator<char>(file), {});
    if (status != 0 && said.empty()) said = "xmllint did not run";
    std::filesystem::remove(path);
    std::filesystem::remove(path + ".err");
    return said;
}
