#include "FamilyFiles/Manifest/ManifestDocument.h"

#include "FamilyFiles/Manifest/FamilyManifest.h"
#include "FamilyFiles/Manifest/JsonNesting.h"
#include "FamilyFiles/Manifest/ManifestReasons.h"

#include <algorithm>
#include <rapidjson/memorystream.h>
#include <rapidjson/schema.h>
#include <rapidjson/stringbuffer.h>
#include <string>
#include <vector>

namespace familyfiles {

extern const std::string_view ManifestSchemaText;

namespace {

/// No recipe comes near it.
constexpr int MaximalNesting = 200;
constexpr unsigned ParseFlags = rapidjson::kParseFullPrecisionFlag | rapidjson::kParseValidateEncodingFlag;
using Reader = rapidjson::SchemaValidatingReader<ParseFlags, rapidjson::MemoryStream, rapidjson::UTF8<>>;

/// One a thread, as its patterns keep what they are at.
const rapidjson::SchemaDocument& Schema()
{
    static thread_local const rapidjson::SchemaDocument schema = [] {
        rapidjson::Document document;
        document.Parse(ManifestSchemaText.data(), ManifestSchemaText.size());
        return rapidjson::SchemaDocument(document);
    }();
    return schema;
}

std::string_view TextOf(const rapidjson::Value& value)
{
    return {value.GetString(), value.GetStringLength()};
}

std::string PathText(const rapidjson::Pointer& pointer)
{
    rapidjson::StringBuffer text;
    pointer.Stringify(text);
    return {text.GetString(), text.GetSize()};
}

bool IsFamily(const rapidjson::Document& document)
{
    if (!document.IsObject()) {
        return false;
    }
    const auto format = document.FindMember("format");
    return format != document.MemberEnd() && format->value.IsString() &&
           TextOf(format->value) == FamilyManifest::FormatName;
}

bool IsNewer(const rapidjson::Document& document)
{
    const auto version = document.FindMember("version");
    return version != document.MemberEnd() && version->value.IsNumber() &&
           version->value.GetDouble() > FamilyManifest::CurrentVersion;
}

/// The name of the parameter, type or connector that a path leads into; empty where there is none.
std::string NameAlong(const rapidjson::Document& document, const rapidjson::Pointer& path)
{
    if (path.GetTokenCount() < 2) {
        return {};
    }
    const rapidjson::Value* const thing =
        rapidjson::Pointer(path.GetTokens(), 2).Get(const_cast<rapidjson::Document&>(document));
    if (thing == nullptr || !thing->IsObject()) {
        return {};
    }
    const auto name = thing->FindMember("name");
    return name != thing->MemberEnd() && name->value.IsString() ? std::string(TextOf(name->value)) : std::string();
}

/// Why the schema or the parser was not content, told from a second look without the schema: what is not a family at
/// all or one of a newer version breaks the schema too.
Reason ReasonOfFailure(std::string_view json, const Reader& reader)
{
    rapidjson::Document document;
    document.Parse<ParseFlags>(json.data(), json.size());
    if (document.HasParseError()) {
        return ManifestIsNoJson(json, document.GetErrorOffset());
    }
    if (!IsFamily(document)) {
        return ManifestIsNoFamily();
    }
    if (IsNewer(document)) {
        return ManifestIsNewer(document["version"].GetDouble());
    }
    const rapidjson::Pointer& path = reader.GetInvalidDocumentPointer();
    const char* const keyword = reader.GetInvalidSchemaKeyword();
    return ManifestBreaksSchema(NameAlong(document, path), PathText(path), keyword != nullptr ? keyword : "type");
}

/// Some editors write it.
std::string_view WithoutByteOrderMark(std::string_view text)
{
    constexpr std::string_view mark("\xEF\xBB\xBF", 3);
    return text.substr(0, mark.size()) == mark ? text.substr(mark.size()) : text;
}

/// A name that one object has twice; empty when there is none.
std::string RepeatedMember(const rapidjson::Value& object)
{
    std::vector<std::string_view> names;
    names.reserve(object.MemberCount());
    for (const auto& member : object.GetObject()) {
        names.push_back(TextOf(member.name));
    }
    std::sort(names.begin(), names.end());
    const auto repeated = std::adjacent_find(names.begin(), names.end());
    return repeated != names.end() ? std::string(*repeated) : std::string();
}

/// JSON leaves open which of two members of one name counts: programs would differ in what they read.
bool HasRepeatedMember(const rapidjson::Value& value, std::string& repeated)
{
    if (value.IsObject()) {
        repeated = RepeatedMember(value);
        return !repeated.empty() || std::any_of(value.MemberBegin(), value.MemberEnd(),
                                        [&](const auto& member) { return HasRepeatedMember(member.value, repeated); });
    }
    return value.IsArray() && std::any_of(value.Begin(), value.End(), [&](const rapidjson::Value& element) {
        return HasRepeatedMember(element, repeated);
    });
}

} // namespace

bool ParseManifest(std::string_view text, rapidjson::Document& document, Reason& reason)
{
    const std::string_view json = WithoutByteOrderMark(text);
    // The parser takes a NUL for the end and would not look behind it.
    if (const std::size_t nul = json.find('\0'); nul != std::string_view::npos) {
        reason = ManifestIsNoJson(json, nul);
        return false;
    }
    if (IsNestedDeeperThan(json, MaximalNesting)) {
        reason = ManifestTooDeep(MaximalNesting);
        return false;
    }
    rapidjson::MemoryStream stream(json.data(), json.size());
    Reader reader(stream, Schema());
    document.Populate(reader);
    if (reader.GetParseResult().IsError() || !reader.IsValid()) {
        reason = ReasonOfFailure(json, reader);
        return false;
    }
    std::string repeated;
    if (HasRepeatedMember(document, repeated)) {
        reason = ManifestRepeatsMember(repeated);
        return false;
    }
    return true;
}

} // namespace familyfiles
