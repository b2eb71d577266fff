#include "Providers/NewUrlImageProvider.h"

#include "Auth/PlainAuthorization_p.h"
#include "Common/DebugWarning.h"
#include "Providers/ThumbnailFile_p.h"
#include "ResponseHandlers/CustomFileReply.h"
#include "tarnnuq/INuqLogger.h"
#include "tarnnuq/NuqLogObject.h"

#include <QNetworkAccessManager>
#include <QNetworkRequest>
#include <new>

namespace tarnnuq {

namespace {

constexpr WarningSource ProvideSource{
    "Providers/NewUrlImageProvider.cpp", __LINE__, "tarnnuq::NewUrlImageProvider::ProvideImageFile"};

std::unique_ptr<CustomFileReply> MakeFileReply() noexcept
{
    try {
        return std::make_unique<CustomFileReply>(nullptr);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

} // namespace

NewUrlImageProvider* NewUrlImageProvider::s_pInstance = nullptr;

NewUrlImageProvider* NewUrlImageProvider::Get()
{
    if (!s_pInstance) {
        s_pInstance = new NewUrlImageProvider;
    }
    return s_pInstance;
}

NewUrlImageProvider::NewUrlImageProvider() : m_spNetworkAccessManager(std::make_shared<QNetworkAccessManager>()) {}

NewUrlImageProvider::~NewUrlImageProvider() = default;

// NOLINTNEXTLINE(performance-unnecessary-value-param)
CustomFileReply* NewUrlImageProvider::ProvideImageFile(std::wstring url)
{
    // Not given away before it has a request: on the ways out below nobody else would ever delete it.
    std::unique_ptr<CustomFileReply> pCustomReply = MakeFileReply();
    if (!pCustomReply) {
        WarnNull(ProvideSource, L"pCustomReply 为空");
        return nullptr;
    }
    const std::wstring path = ThumbnailFilePath(url);
    INuqLogger::Get()->Info(path);
    pCustomReply->SetSaveFilePath(path);
    const QNetworkRequest request = ThumbnailRequest(url);
    if (!m_spNetworkAccessManager) {
        WarnNull(ProvideSource, L"m_spNetworkAccessManager 为空");
        return nullptr;
    }
    QNetworkReply* pReply = m_spNetworkAccessManager->get(request);
    if (!pReply) {
        WarnNull(ProvideSource, L"pReply 为空");
        return nullptr;
    }
    pCustomReply->SetReply(pReply);
    return pCustomReply.release();
}

void NewUrlImageProvider::ConfigureAuthorization(QNetworkRequest& request) const
{
    SetPlainAuthorization(request);
}

} // namespace tarnnuq
