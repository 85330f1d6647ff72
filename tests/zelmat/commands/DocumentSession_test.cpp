#include <algorithm>
#include <cstdlib>
#include <nlohmann/json.hpp>
#include <random>

#include "tests/zelmat/support/DocumentFolder.h"

namespace {

using nlohmann::json;

/// What a material of the session is to hold, as simply as can be.
struct Held {
    int id = 0;  // later ones are listed later
    std::string name;
    std::string description = {};
    int density = 7850;  // kg/m3
    bool hasDensity = true;
    int modulus = 210;                                   // GPa
    std::vector<std::pair<int, int>> conductivity = {};  // W/(m K) at K

    bool operator==(const Held&) const = default;

    std::string Text() const {
        std::string text = name + ": " + description + ", E " + std::to_string(modulus);
        if (hasDensity) text += ", density " + std::to_string(density);
        for (const auto& [value, temperature] : conductivity) {
            text += ", " + std::to_string(value) + " at " + std::to_string(temperature);
        }
        return text;
    }
};

using State = std::vector<Held>;

/// Every state before and after a step, kept whole.
class Model {
public:
    State now;

    /// A command has made the state another one, or not.
    void Commit(const State& before) {
        if (before == now) return;
        states_.resize(done_ + 1);
        states_.push_back(now);
        ++done_;
    }
    bool Go(int steps) {
        const int last = static_cast<int>(states_.size()) - 1;
        const int target = std::clamp(static_cast<int>(done_) + steps, 0, last);
        const bool moves = target != static_cast<int>(done_);
        done_ = static_cast<std::size_t>(target);
        now = states_[done_];
        return moves;
    }
    std::size_t Done() const { return done_; }
    std::size_t Steps() const { return states_.size() - 1; }

private:
    std::vector<State> states_ = {State()};
    std::size_t done_ = 0;
};

/// As many commands as a test suite can wait for; ZELMAT_SESSION_COMMANDS=1000 asks for more.
int CommandCount() {
    const char* const asked = std::getenv("ZELMAT_SESSION_COMMANDS");
    return asked ? std::atoi(asked) : 60;
}

/// Random commands of the program on one document, each a process of its own, beside the model.
class DocumentSession : public DocumentFolder, public testing::WithParamInterface<unsigned> {
protected:
    int Below(int bound) { return static_cast<int>(random_() % static_cast<unsigned>(bound)); }

    std::string Shown() const {
        const ProgramRun run = RunZelmat({"list", document_, "--json"});
        EXPECT_EQ(run.exitCode, 0) << run.err;
        if (json::parse(run.out).at("materials").empty()) return "";
        const json told = json::parse(RunZelmat({"show", document_, "--json"}).out);
        std::string text;
        const json one = json::array({told.value("material", json())});
        for (const json& material : told.contains("materials") ? told.at("materials") : one) {
            text += ShownOf(material).Text() + "\n";
        }
        return text;
    }

    static Held ShownOf(const json& material) {
        Held held{
            .name = material.at("name"), .description = material.at("description"), .hasDensity = false};
        for (const json& behavior : material.at("behaviors")) {
            const json& rows = behavior.at("tables").at(0).at("rows");
            if (behavior.at("name") == "elastic")
                held.modulus = static_cast<int>(rows[0][0].get<double>() / 1e9);
            if (behavior.at("name") == "density") {
                held.hasDensity = true;
                held.density = rows[0][0].get<int>();
            }
            if (behavior.at("name") != "conductivity") continue;
            for (const json& row : rows) held.conductivity.emplace_back(row[0].get<int>(), row[1].get<int>());
        }
        return held;
    }

    std::string ShownByModel() const {
        std::string text;
        for (const Held& held : model_.now) text += held.Text() + "\n";
        return text;
    }

    bool IsTaken(const std::string& name) const {
        return std::any_of(model_.now.begin(), model_.now.end(),
                           [&](const Held& held) { return held.name == name; });
    }

    void Do(const std::vector<std::string>& arguments, int exitCode = 0) const {
        const ProgramRun run = RunZelmat(arguments);
        EXPECT_EQ(run.exitCode, exitCode) << arguments.front() << ": " << run.err;
    }

    void Add() {
        Held held{.id = ++lastId_, .name = "M" + std::to_string(lastId_), .density = 7000 + Below(2000)};
        held.description = Below(2) == 0 ? "" : "made " + std::to_string(lastId_);
        const json card = {{"name", held.name},
                           {"description", held.description},
                           {"elastic",
                            {{"temperature_dependent", false},
                             {"columns", {"E [GPa]", "nu"}},
                             {"rows", {{held.modulus, 0.3}}}}},
                           {"density",
                            {{"temperature_dependent", false},
                             {"columns", {"density [kg/m3]"}},
                             {"rows", {{held.density}}}}}};
        Do({"add", document_, File("card.json", card.dump())});
        model_.now.push_back(held);
    }

    /// What is wrong with a value changes nothing.
    void SetWrong(const Held& held) {
        static const char* const kWrong[] = {"density=-1 kg/m3", "density=7850",
                                             "elastic.poissons_ratio=0.7"};
        const int wrong = Below(3);
        Do({"set", document_, held.name, "description=lost", kWrong[wrong]}, wrong == 1 ? 2 : 1);
    }

    void Set(Held& held) {
        std::vector<std::string> arguments = {"set", document_, held.name};
        if (Below(2) == 0) {
            held.modulus = 150 + Below(100);
            arguments.push_back("elastic.youngs_modulus=" + std::to_string(held.modulus) + "GPa");
        }
        switch (Below(4)) {
            case 0:
                held.density = 7000 + Below(3);
                held.hasDensity = true;
                arguments.push_back("density=" + std::to_string(held.density) + " kg/m3");
                break;
            case 1:
                held.hasDensity = !held.hasDensity;
                arguments.push_back(std::string("density.enabled=") + (held.hasDensity ? "on" : "off"));
                break;
            case 2: {
                held.conductivity.clear();
                std::string table = "conductivity [W/(m K)],T [K]\n";
                for (int row = 2 + Below(4); row > 0; --row) {
                    held.conductivity.emplace_back(20 + Below(30), 1000 - 100 * row);
                    const auto& [value, temperature] = held.conductivity.back();
                    table += std::to_string(value) + "," + std::to_string(temperature) + "\n";
                }
                arguments.push_back("conductivity=" + File("table.csv", table));
                break;
            }
            default:
                held.description = "words " + std::to_string(Below(3));
                arguments.push_back("description=" + held.description);
        }
        Do(arguments);
    }

    void Copy(const Held& original) {
        Held copy = original;
        copy.id = ++lastId_;
        for (int number = 2; IsTaken(copy.name); ++number) {
            copy.name = original.name + " (" + std::to_string(number) + ")";
        }
        Do({"copy", document_, original.name});
        model_.now.push_back(copy);
    }

    void Change() {
        const State before = model_.now;
        if (model_.now.empty() || Below(5) == 0) {
            Add();
        } else {
            const auto at = model_.now.begin() + Below(static_cast<int>(model_.now.size()));
            switch (Below(8)) {
                case 0:
                    Copy(Held(*at));
                    break;
                case 1:
                    Do({"remove", document_, at->name});
                    model_.now.erase(at);
                    break;
                case 2: {
                    const std::string name = "R" + std::to_string(Below(4));
                    const bool taken = name != at->name && IsTaken(name);
                    Do({"rename", document_, at->name, name}, taken ? 1 : 0);
                    if (!taken) at->name = name;
                    break;
                }
                case 3:
                    SetWrong(*at);
                    break;
                default:
                    Set(*at);
            }
        }
        model_.Commit(before);
    }

    void Command() {
        const int steps = 1 + Below(3);
        switch (Below(6)) {
            case 0:
                Do({"undo", document_, std::to_string(steps)}, model_.Go(-steps) ? 0 : 1);
                break;
            case 1:
                Do({"redo", document_, std::to_string(steps)}, model_.Go(steps) ? 0 : 1);
                break;
            default:
                Change();
        }
    }

    std::mt19937 random_{GetParam()};
    Model model_;
    int lastId_ = 0;
    const std::string document_ = NewDocument();
};

TEST_P(DocumentSession, HoldsTheValuesOfTheModelAfterEveryCommandAndAtBothEndsOfItsHistory) {
    for (int command = 0; command < CommandCount(); ++command) {
        Command();
        ASSERT_EQ(Shown(), ShownByModel()) << "after command " << command;
        ASSERT_FALSE(HasFailure()) << "after command " << command;
    }
    model_.Go(1000000);
    RunZelmat({"redo", document_, "1000000"});
    const std::string last = Shown();
    ASSERT_EQ(last, ShownByModel());
    const std::string all = std::to_string(model_.Steps());

    Do({"undo", document_, all});
    EXPECT_EQ(Shown(), "");
    Do({"undo", document_}, 1);
    Do({"redo", document_, all});

    EXPECT_EQ(Shown(), last);
    EXPECT_EQ(Run({"doctor", document_}), "a.zeldoc: sound\n");
}

INSTANTIATE_TEST_SUITE_P(, DocumentSession, testing::Values(1u, 2u));

}  // namespace
