#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

#include "platform/catalog/KORJsonFile.h"

/// Base of what takes a JSON text of a known form apart: looks values up by pointer and says what is wrong
/// with them, with file and line. Only the first error is kept; once there is one, what was read is of no
/// use.
class KORJsonReader {
public:
    const std::optional<KORJsonError>& Error() const { return error_; }

protected:
    using Json = nlohmann::json;
    using Pointer = nlohmann::json::json_pointer;

    explicit KORJsonReader(const KORJsonFile& file) : file_(file) {}
    ~KORJsonReader() = default;

    const Json& Root() const { return file_.Root(); }
    const Json& At(const Pointer& at) const { return file_.Root()[at]; }
    bool Has(const Pointer& at, const char* member) const { return At(at).contains(member); }

    /// An object with no other members than these.
    bool IsObjectOf(const Pointer& at, std::initializer_list<std::string_view> members);
    void ExpectFormat(int format);  ///< the member "format" of the whole text
    const Json& Array(const Pointer& at, const char* member);
    std::string Text(const Pointer& at, const char* member);  ///< not empty
    void Fail(const Pointer& at, const std::string& message);

    static bool IsInt(const Json& value);
    static std::string Quoted(std::string_view text);

private:
    const KORJsonFile& file_;
    std::optional<KORJsonError> error_;
};
