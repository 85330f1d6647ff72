#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "zelmat/commands/frame/Argument.h"

namespace CLI {
class App;
}

namespace zelmat {

/// What a command takes on its line: each argument ("CARD|DOC") and option ("--model") with the variable that
/// it fills, which outlives this. Several arguments are taken in the order in which they were added; a list
/// takes all words that are left. CLI11 stays behind it.
class Arguments {
public:
    Arguments(const std::string& command, const std::string& text);  ///< "zelmat show", and what it does
    ~Arguments();
    Arguments(const Arguments&) = delete;
    Arguments& operator=(const Arguments&) = delete;

    Argument Add(const std::string& name, std::string& value, const std::string& help);
    Argument Add(const std::string& name, std::vector<std::string>& values, const std::string& help);
    Argument Add(const std::string& name, int& value, const std::string& help);
    Argument Add(const std::string& name, std::size_t& value, const std::string& help);
    Argument Add(const std::string& name, std::optional<int>& value, const std::string& help);
    Argument Add(const std::string& name, std::optional<std::uint32_t>& value, const std::string& help);
    Argument Add(const std::string& name, std::optional<std::string>& value, const std::string& help);
    Argument AddFlag(const std::string& name, bool& value, const std::string& help);

    /// "--json", as they are typed, those for help among them.
    std::vector<std::string> OptionNames() const;

    /// What `zelmat help COMMAND` prints.
    std::string Help() const;

    struct Outcome {
        bool asksForHelp = false;
        std::string mistake;  ///< a sentence; empty: there is none
    };

    /// Fills the variables from the words behind the command's name.
    Outcome Read(std::vector<std::string> words);

private:
    std::unique_ptr<CLI::App> line_;
};

}  // namespace zelmat
