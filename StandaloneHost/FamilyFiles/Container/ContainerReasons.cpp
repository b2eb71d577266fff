#include "FamilyFiles/Container/ContainerReasons.h"

#include "FamilyFiles/Container/ContainerReader.h"
#include "FamilyFiles/ShortText.h"

namespace familyfiles {

namespace {

std::string Quoted(const std::string& text)
{
    return '"' + ShortText(text, 200) + '"';
}

std::string QuotedChinese(const std::string& text)
{
    return "“" + ShortText(text, 200) + "”";
}

std::string MebibytesText(std::size_t bytes)
{
    return std::to_string(bytes >> 20U) + " MiB";
}

Reason OfFile(const char* code, const std::string& path, const std::string& english, const std::string& chinese)
{
    return {std::string("file.") + code, path, "The file " + Quoted(path) + ' ' + english + '.',
        "文件" + QuotedChinese(path) + chinese + "。"};
}

Reason OfContainer(const char* code, const std::string& english, const std::string& chinese)
{
    return {std::string("container.") + code, {}, "The family file " + english + '.', "族文件" + chinese + "。"};
}

Reason OfEntry(const char* code, const std::string& entry, const std::string& english, const std::string& chinese)
{
    return {std::string("container.") + code, entry,
        "The entry " + Quoted(entry) + " of the family file " + english + '.',
        "族文件中的条目" + QuotedChinese(entry) + chinese + "。"};
}

} // namespace

Reason FileNotFound(const std::string& path)
{
    return OfFile("not-found", path, "does not exist", "不存在");
}

Reason FileUnreadable(const std::string& path, const std::string& detail)
{
    return OfFile("unreadable", path, "cannot be read: " + detail, "无法读取：" + detail);
}

Reason FileTooLarge(const std::string& path, std::size_t limit)
{
    return OfFile("too-large", path, "is larger than " + MebibytesText(limit), "超过 " + MebibytesText(limit));
}

Reason FileNotWritten(const std::string& path, const std::string& detail)
{
    return OfFile("not-written", path, "cannot be written: " + detail, "无法写入：" + detail);
}

Reason NotAContainer()
{
    return OfContainer("not-a-container", "is no archive, hence no family file", "不是压缩包，因此不是族文件");
}

Reason DamagedContainer(const std::string& detail)
{
    return OfContainer("damaged", "is damaged or cut off: " + detail, "已损坏或不完整：" + detail);
}

Reason EncryptedEntry(const std::string& entry)
{
    return OfEntry("encrypted", entry, "is encrypted", "已加密");
}

Reason BadEntryName(const std::string& entry)
{
    return OfEntry(
        "bad-entry-name", entry, "has a name that leads out of the file or is no text", "名称无效或指向文件之外");
}

Reason DuplicateEntry(const std::string& entry)
{
    return OfEntry("duplicate-entry", entry, "is there twice", "重复");
}

Reason TooManyEntries(std::size_t limit)
{
    const std::string most = std::to_string(limit);
    return OfContainer("too-many-entries", "has more than " + most + " entries", "的条目超过 " + most + " 个");
}

Reason EntryTooLarge(const std::string& entry, std::size_t limit)
{
    return OfEntry(
        "entry-too-large", entry, "is larger than " + MebibytesText(limit), "解压后超过 " + MebibytesText(limit));
}

Reason EntriesTooLarge(std::size_t limit)
{
    return OfContainer(
        "entry-too-large", "holds more than " + MebibytesText(limit), "解压后总计超过 " + MebibytesText(limit));
}

Reason DamagedEntry(const std::string& entry, const std::string& detail)
{
    return OfEntry("damaged", entry, "is damaged: " + detail, "已损坏：" + detail);
}

Reason MissingEntry(const std::string& entry)
{
    const bool isManifest = entry == ContainerReader::ManifestName;
    return OfEntry(isManifest ? "missing-manifest" : "missing-entry", entry, "is missing", "缺失");
}

} // namespace familyfiles
