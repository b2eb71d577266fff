#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace nuqcloud {

/// Where a fault is made: by the relay on the bytes, or by the server as a well-formed HTTP reply.
enum class FaultLayer
{
    Connection,
    Http
};

/// What stands behind the "=" of a fault.
enum class FaultValue
{
    None,
    Number,
    Text
};

/// One kind of fault, as help and documentation list it.
struct FaultKind
{
    const char* name;
    FaultLayer layer;
    FaultValue value;
    const char* valueName; ///< what the value means; empty when there is none
    const char* absent;    ///< value when none is given; empty when it must be given or is chosen by the reply's length
    std::int64_t smallest;
    std::int64_t largest;
    const char* effect; ///< one sentence part for help
};

/// All kinds, in the order of the documentation.
const std::vector<FaultKind>& FaultKinds();

/// Null when there is no kind of that name.
const FaultKind* FindFaultKind(std::string_view name);

/// One fault that is to be made.
struct Fault
{
    const FaultKind* kind = nullptr; ///< never null in a parsed fault
    std::string value;               ///< as given or the kind's default; may be empty
    std::int64_t number = -1;        ///< the value of a numeric kind; -1 when the reply's length decides

    bool Is(std::string_view name) const { return kind != nullptr && name == kind->name; }
};

/// A fault text that cannot be understood; the text says what was expected.
class FaultSyntaxError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// Reads "kind[=value],kind[=value]..", as the header X-Nuq-Fault has it.
/// @throws FaultSyntaxError
std::vector<Fault> ParseFaults(std::string_view text);

/// The reverse of ParseFaults.
std::string FormatFaults(const std::vector<Fault>& faults);

/// The fault of that name, or null.
const Fault* FindFault(const std::vector<Fault>& faults, std::string_view name);

} // namespace nuqcloud
