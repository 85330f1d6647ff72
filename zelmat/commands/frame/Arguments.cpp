#include "zelmat/commands/frame/Arguments.h"

#include <CLI/CLI.hpp>
#include <algorithm>

namespace zelmat {

Arguments::Arguments(const std::string& command, const std::string& text)
    : line_(std::make_unique<CLI::App>(text, command)) {}

Arguments::~Arguments() = default;

Argument Arguments::Add(const std::string& name, std::string& value, const std::string& help) {
    return Argument(*line_->add_option(name, value, help));
}

Argument Arguments::Add(const std::string& name, std::vector<std::string>& values, const std::string& help) {
    return Argument(*line_->add_option(name, values, help));
}

Argument Arguments::Add(const std::string& name, int& value, const std::string& help) {
    return Argument(*line_->add_option(name, value, help));
}

Argument Arguments::Add(const std::string& name, std::size_t& value, const std::string& help) {
    return Argument(*line_->add_option(name, value, help));
}

Argument Arguments::Add(const std::string& name, std::optional<int>& value, const std::string& help) {
    return Argument(*line_->add_option(name, value, help));
}

Argument Arguments::Add(const std::string& name, std::optional<std::uint32_t>& value,
                        const std::string& help) {
    return Argument(*line_->add_option(name, value, help));
}

Argument Arguments::Add(const std::string& name, std::optional<std::string>& value, const std::string& help) {
    return Argument(*line_->add_option(name, value, help));
}

Argument Arguments::AddFlag(const std::string& name, bool& value, const std::string& help) {
    return Argument(*line_->add_flag(name, value, help));
}

std::vector<std::string> Arguments::OptionNames() const {
    std::vector<std::string> names;
    const CLI::App& line = *line_;
    for (const CLI::Option* option : line.get_options()) {
        for (const std::string& name : option->get_lnames()) names.push_back("--" + name);
        for (const std::string& name : option->get_snames()) names.push_back("-" + name);
    }
    return names;
}

std::string Arguments::Help() const {
    return line_->help();
}

Arguments::Outcome Arguments::Read(std::vector<std::string> words) {
    try {
        std::ranges::reverse(words);  // as the parser takes them
        line_->parse(std::move(words));
    } catch (const CLI::CallForHelp&) {
        return {true, ""};
    } catch (const CLI::ParseError& error) {
        return {false, error.what()};
    }
    return {};
}

}  // namespace zelmat
