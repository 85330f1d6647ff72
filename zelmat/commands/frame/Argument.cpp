#include "zelmat/commands/frame/Argument.h"

#include <CLI/CLI.hpp>

namespace zelmat {

const Argument& Argument::Required() const {
    option_->required();
    return *this;
}

const Argument& Argument::OneOf(const std::vector<std::string>& words) const {
    option_->check(CLI::IsMember(words));
    return *this;
}

const Argument& Argument::Within(int least, int most) const {
    option_->check(CLI::Range(least, most));
    return *this;
}

const Argument& Argument::NotEmpty(const std::string& mistake) const {
    const auto check = [mistake](const std::string& given) { return given.empty() ? mistake : ""; };
    option_->check(CLI::Validator(check, ""));
    return *this;
}

const Argument& Argument::Excludes(const Argument& other) const {
    option_->excludes(other.option_);
    return *this;
}

const Argument& Argument::Needs(const Argument& other) const {
    option_->needs(other.option_);
    return *this;
}

const Argument& Argument::AtCommas() const {
    option_->delimiter(',');
    return *this;
}

const Argument& Argument::NoneOrMore(bool& given) const {
    option_->expected(0, -1)->trigger_on_parse()->each([&given](const std::string&) { given = true; });
    return *this;
}

const Argument& Argument::NamedInHelp(const std::string& value) const {
    option_->type_name(value);
    return *this;
}

const Argument& Argument::ShowsDefault() const {
    option_->capture_default_str();
    return *this;
}

const Argument& Argument::ShowsDefault(const std::string& text) const {
    option_->default_str(text);
    return *this;
}

}  // namespace zelmat
