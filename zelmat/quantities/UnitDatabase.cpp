#include "zelmat/quantities/UnitDatabase.h"

#include <locale.h>
#include <udunits2.h>

#include <array>
#include <cmath>
#include <memory>
#include <string>

namespace zelmat {

namespace {

struct FreeSystem {
    void operator()(ut_system* system) const { ut_free_system(system); }
};
struct FreeUnit {
    void operator()(ut_unit* unit) const { ut_free(unit); }
};
using SystemHandle = std::unique_ptr<ut_system, FreeSystem>;
using UnitHandle = std::unique_ptr<ut_unit, FreeUnit>;

/// The library prints what it dislikes unless it is told not to; its handler is one per process.
class Silence {
public:
    Silence() : before_(ut_set_error_message_handler(&ut_ignore)) {}
    ~Silence() { ut_set_error_message_handler(before_); }
    Silence(const Silence&) = delete;
    Silence& operator=(const Silence&) = delete;

private:
    ut_error_message_handler before_;
};

/// The calling thread in the locale "C": the library reads the factors of its database with the locale's
/// decimal sign.
class PlainLocale {
public:
    PlainLocale()
        : plain_(newlocale(LC_ALL_MASK, "C", nullptr)), before_(plain_ ? uselocale(plain_) : nullptr) {}
    ~PlainLocale() {
        if (!plain_) return;
        uselocale(before_);
        freelocale(plain_);
    }
    PlainLocale(const PlainLocale&) = delete;
    PlainLocale& operator=(const PlainLocale&) = delete;

private:
    locale_t plain_;
    locale_t before_;
};

SystemHandle ReadDatabase() {
    const PlainLocale locale;
    return SystemHandle(ut_read_xml(nullptr));
}

/// Takes a unit apart into a factor and powers of base units.
class Reading {
public:
    static std::optional<UnitWord> Of(const ut_unit* unit) {
        static constexpr ut_visitor kVisitor = {&Basic, &Product, &Galilean, &Timestamp, &Logarithmic};
        Reading reading;
        if (ut_accept_visitor(unit, &kVisitor, &reading) != UT_SUCCESS || !reading.understood_) return {};
        const long double factor = reading.word_.factor.numerator;
        return std::isfinite(factor) && factor > 0.0L ? std::optional(reading.word_) : std::nullopt;
    }

private:
    bool Take(const ut_unit* basic, int power) {
        static constexpr std::array<std::string_view, Dimension::COUNT> kSymbols = {"m", "kg",  "s",  "K",
                                                                                    "A", "mol", "cd", "rad"};
        const char* symbol = ut_get_symbol(basic, UT_ASCII);
        for (std::size_t base = 0; symbol && base < kSymbols.size(); ++base) {
            if (kSymbols[base] != symbol) continue;
            word_.dimension *= Dimension(static_cast<Dimension::Base>(base)).ToThe(power);
            return true;
        }
        return false;
    }

    static ut_status Basic(const ut_unit* unit, void* self) {
        auto& reading = *static_cast<Reading*>(self);
        reading.understood_ = reading.Take(unit, 1);
        return UT_SUCCESS;
    }

    static ut_status Product(const ut_unit*, int count, const ut_unit* const* units, const int* powers,
                             void* self) {
        auto& reading = *static_cast<Reading*>(self);
        reading.understood_ = true;
        for (int i = 0; i < count; ++i) {
            reading.understood_ = reading.understood_ && reading.Take(units[i], powers[i]);
        }
        return UT_SUCCESS;
    }

    static ut_status Galilean(const ut_unit*, double scale, const ut_unit* underlying, double offset,
                              void* self) {
        auto& reading = *static_cast<Reading*>(self);
        const auto below = Of(underlying);
        if (!below || offset != 0.0) return UT_SUCCESS;
        reading.word_ = *below;
        reading.word_.factor.numerator *= static_cast<long double>(scale);
        reading.understood_ = true;
        return UT_SUCCESS;
    }

    static ut_status Timestamp(const ut_unit*, const ut_unit*, double, void*) { return UT_SUCCESS; }
    static ut_status Logarithmic(const ut_unit*, double, const ut_unit*, void*) { return UT_SUCCESS; }

    UnitWord word_;
    bool understood_ = false;
};

/// Symbols count as written. Names do not heed capitals, so that the short ones could be taken for symbols.
UnitHandle Find(const ut_system* system, const std::string& word) {
    constexpr std::size_t kShortestName = 4;
    if (UnitHandle symbol{ut_get_unit_by_symbol(system, word.c_str())}) return symbol;
    if (word.size() < kShortestName) return nullptr;
    return UnitHandle(ut_get_unit_by_name(system, word.c_str()));
}

struct NamePrefix {
    std::string_view name;
    UnitFactor factor;
};

constexpr NamePrefix kNamePrefixes[] = {
    {"kilo", {1e3L, 1.0L}},  {"mega", {1e6L, 1.0L}},    {"giga", {1e9L, 1.0L}},  {"tera", {1e12L, 1.0L}},
    {"deci", {1.0L, 10.0L}}, {"centi", {1.0L, 100.0L}}, {"milli", {1.0L, 1e3L}}, {"micro", {1.0L, 1e6L}},
    {"nano", {1.0L, 1e9L}},  {"pico", {1.0L, 1e12L}},
};

}  // namespace

std::optional<UnitWord> FindDatabaseWord(std::string_view word) {
    const Silence silence;
    static const SystemHandle system = ReadDatabase();
    if (!system || word.find('\0') != std::string_view::npos) return std::nullopt;
    if (const UnitHandle whole = Find(system.get(), std::string(word))) return Reading::Of(whole.get());
    for (const NamePrefix& prefix : kNamePrefixes) {
        if (!word.starts_with(prefix.name)) continue;
        const UnitHandle unit(
            ut_get_unit_by_name(system.get(), std::string(word.substr(prefix.name.size())).c_str()));
        auto meaning = unit ? Reading::Of(unit.get()) : std::nullopt;
        if (meaning) meaning->factor = meaning->factor * prefix.factor;
        return meaning;
    }
    return std::nullopt;
}

}  // namespace zelmat
