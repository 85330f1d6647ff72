#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

#include "platform/catalog/KORJsonFile.h"

/// Base of what takes a JSON text of a known form apart: says what is wrong with its values, with file and
/// line. Only the first error is kept; once there is one, what was read is of no use.
class KORJsonReader {
public:
    const std::optional<KORFileError>& Error() const { return error_; }

protected:
    using Json = nlohmann::json;

    explicit KORJsonReader(const KORJsonFile& file) : file_(file) {}
    ~KORJsonReader() = default;

    const Json& Root() const { return file_.Root(); }

    /// A member of an object; null when it has none of that name, and when it is no object.
    static const Json* Find(const Json& object, const char* member);

    /// The place of a member for errors: where it would stand when it is missing.
    static const Json& PlaceOf(const Json& object, const char* member);

    /// An object with no other members than these.
    bool IsObjectOf(const Json& value, std::initializer_list<std::string_view> members);
    void ExpectFormat(int format);                              ///< the member "format" of the whole text
    const Json& Array(const Json& object, const char* member);  ///< empty when there is none
    std::string Text(const Json& object, const char* member);   ///< not empty
    void Fail(const Json& at, const std::string& message);

    static bool IsInt(const Json& value);         ///< a whole number of 32 bits
    static std::string Shown(const Json& value);  ///< the same for a value of any kind
    static std::string Quoted(std::string_view text) { return KORShownText(text); }

private:
    const KORJsonFile& file_;
    std::optional<KORFileError> error_;
};
