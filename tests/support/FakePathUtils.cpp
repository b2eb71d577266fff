#include "support/FakePathUtils.h"

namespace testsupport {

std::wstring FakePathUtils::DoGetThumbnailDownloadFilePath(std::wstring url, std::wstring extension) const
{
    questions.emplace_back(url, extension);
    for (wchar_t& letter : url) {
        letter = std::wstring(L"/:?").find(letter) == std::wstring::npos ? letter : L'_';
    }
    return folder + url + extension;
}

} // namespace testsupport
