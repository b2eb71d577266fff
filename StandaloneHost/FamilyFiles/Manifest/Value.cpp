#include "FamilyFiles/Manifest/Value.h"

#include "FamilyFiles/ShortText.h"

#include <charconv>

namespace familyfiles {

namespace {

template <typename Number>
std::string NumberText(Number number)
{
    char text[32];
    const auto end = std::to_chars(std::begin(text), std::end(text), number);
    return {text, end.ptr};
}

} // namespace

Value EmptyValue(StorageType storageType)
{
    switch (storageType) {
    case StorageType::YesNo:
        return false;
    case StorageType::Integer:
        return 0;
    case StorageType::FloatingPoint:
        return 0.0;
    case StorageType::Text:
        break;
    }
    return std::string();
}

std::string ValueText(const Value& value)
{
    switch (StorageTypeOf(value)) {
    case StorageType::YesNo:
        return std::get<bool>(value) ? "true" : "false";
    case StorageType::Integer:
        return NumberText(std::get<int>(value));
    case StorageType::FloatingPoint:
        return NumberText(std::get<double>(value));
    case StorageType::Text:
        break;
    }
    return ShortText(std::get<std::string>(value));
}

} // namespace familyfiles
