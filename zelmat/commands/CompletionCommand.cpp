
#include "zelmat/commands/CommandTable.h"
#include "zelmat/commands/frame/Arguments.h"
#include "zelmat/commands/frame/Command.h"
#include "zelmat/commands/frame/CommandLine.h"

namespace zelmat {

namespace {

std::string Joined(const std::vector<std::string>& words) {
    std::string text;
    for (const std::string& word : words) text += (text.empty() ? "" : " ") + word;
    return text;
}

std::string CommandNames() {
    std::vector<std::string> names = {"help"};
    for (const CommandKind& kind : Commands()) names.push_back(kind.name);
    return Joined(names);
}

std::string BashScript() {
    std::string script =
        "# zelmat: completion for bash. Made by zelmat completion bash.\n"
        "_zelmat() {\n"
        "    local word=${COMP_WORDS[COMP_CWORD]} options=\n"
        "    COMPREPLY=()\n"
        "    if [ \"$COMP_CWORD\" -eq 1 ]; then\n"
        "        COMPREPLY=($(compgen -W '" +
        CommandNames() +
        " --help --version' -- \"$word\"))\n"
        "        return\n"
        "    fi\n"
        "    case ${COMP_WORDS[1]} in\n";
    script += "        help) options='" + CommandNames() + "' ;;\n";
    for (const CommandKind& kind : Commands()) {
        script += "        " + kind.name + ") options='" + Joined(CommandOptions(kind)) + "' ;;\n";
    }
    script +=
        "    esac\n"
        "    if [[ $word == -* || ${COMP_WORDS[1]} == help ]]; then\n"
        "        COMPREPLY=($(compgen -W \"$options\" -- \"$word\"))\n"
        "    fi\n"
        "}\n"
        "complete -o default -F _zelmat zelmat\n";
    return script;
}

std::string Quoted(const std::string& text) {
    std::string quoted = "'";
    for (const char c : text) quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return quoted + "'";
}

std::string ZshScript() {
    std::string script =
        "#compdef zelmat\n"
        "# zelmat: completion for zsh. Made by zelmat completion zsh.\n"
        "local -a commands options\n"
        "commands=(\n    'help:explain a command'\n";
    for (const CommandKind& kind : Commands()) script += "    " + Quoted(kind.name + ":" + kind.brief) + "\n";
    script +=
        ")\n"
        "if (( CURRENT == 2 )); then\n"
        "    _describe command commands\n"
        "    return\n"
        "fi\n"
        "case $words[2] in\n"
        "    help) _describe command commands; return ;;\n";
    for (const CommandKind& kind : Commands()) {
        script += "    " + kind.name + ") options=(" + Joined(CommandOptions(kind)) + ") ;;\n";
    }
    script +=
        "esac\n"
        "if [[ $PREFIX == -* ]]; then\n"
        "    compadd -- $options\n"
        "else\n"
        "    _files\n"
        "fi\n";
    return script;
}

std::string FishScript() {
    std::string script =
        "# zelmat: completion for fish. Made by zelmat completion fish.\n"
        "complete -c zelmat -n __fish_use_subcommand -a help -d 'explain a command'\n";
    for (const CommandKind& kind : Commands()) {
        script += "complete -c zelmat -n __fish_use_subcommand -a " + kind.name + " -d " +
                  Quoted(kind.brief) + "\n";
        for (const std::string& option : CommandOptions(kind)) {
            if (!option.starts_with("--")) continue;
            script += "complete -c zelmat -n '__fish_seen_subcommand_from " + kind.name + "' -l " +
                      option.substr(2) + "\n";
        }
    }
    return script;
}

/// Prints a script with which a shell completes the words of a command line.
class Completion final : public Command {
public:
    void Declare(Arguments& line) override {
        line.Add("SHELL", shell_, "bash, zsh or fish").Required().OneOf({"bash", "zsh", "fish"});
    }

    void Work(CommandContext&) override {
        if (shell_ == "bash") script_ = BashScript();
        if (shell_ == "zsh") script_ = ZshScript();
        if (shell_ == "fish") script_ = FishScript();
    }

    void Print(std::ostream& out) const override { out << script_; }

    nlohmann::ordered_json Json() const override { return {{"shell", shell_}, {"script", script_}}; }

private:
    std::string shell_;
    std::string script_;
};

}  // namespace

CommandKind CompletionCommand() {
    return {.name = "completion",
            .brief = "print a script with which a shell completes command lines",
            .text =
                "Print a script with which bash, zsh or fish completes commands, options and file names:\n"
                "zelmat completion bash > /etc/bash_completion.d/zelmat. It is made from the same table as\n"
                "the help; zelmat help --man prints the manual page.",
            .make = &MakeCommand<Completion>};
}

}  // namespace zelmat
