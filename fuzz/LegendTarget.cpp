// Legend ids and files of a component database: the input is cut at its NULs into the 2D folder, and an id and a file
// for each legend.
#include "PropertySvcs/PropertyService.h"
#include "support/FuzzHost.h"
#include "tarn/TarnComponentSqlUtil.h"
#include "tarn/TarnFilePathSettings.h"

#include <QList>
#include <cstdint>
#include <cstdlib>

namespace {

using tarnnuq::ILegend;

std::wstring WideText(const QByteArray& bytes)
{
    return QString::fromUtf8(bytes).toStdWString();
}

/// A database with the legends of the input.
class Database final : public tarn::TarnComponentSqlUtil, public tarn::TarnFilePathSettings
{
public:
    explicit Database(const QList<QByteArray>& parts) : m_folder(WideText(parts.first()))
    {
        for (int i = 1; i + 1 < parts.size(); i += 2) {
            m_legends[WideText(parts[i])] = WideText(parts[i + 1]);
        }
    }

    const std::wstring& Folder() const { return m_folder; }
    const std::map<std::wstring, std::wstring>& Legends() const { return m_legends; }

protected:
    std::wstring DoGetCurrentProductDBFilePath() const override { return L"db"; }
    std::wstring DoGetCurrentProduct2DFolderPath() const override { return m_folder; }
    bool DoGetLocalLegendsOfTheCategory(const std::wstring&, const std::wstring&, tarn::TarnLegendType,
        std::map<std::wstring, std::wstring>& legends) const override
    {
        legends = m_legends;
        return true;
    }

private:
    std::wstring m_folder;
    std::map<std::wstring, std::wstring> m_legends;
};

void Expect(bool isTrue)
{
    if (!isTrue) {
        std::abort();
    }
}

bool EndsIn(const std::wstring& text, const std::wstring& end)
{
    return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

void Check(const ILegend& legend, const std::wstring& file, const Database& database)
{
    Expect(legend.Thumbnail == database.Folder() + L"\\" + file + L".png");
    Expect(legend.Name.find(L'\\') == std::wstring::npos);
    Expect(legend.Name == file || EndsIn(file, L"\\" + legend.Name));
    Expect(legend.Type == ILegend::Plan);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::FuzzHost::Get();
    Database database(QByteArray(reinterpret_cast<const char*>(data), static_cast<int>(size)).split('\0'));
    const hostsdk::HostServices before = hostsdk::Installed();
    hostsdk::HostServices services = before;
    services.componentSql = &database;
    services.filePaths = &database;
    hostsdk::Install(services);
    const auto legends = tarnnuq::PropertyService::Get()->GetLegends(L"code", ILegend::Plan);
    hostsdk::Install(before);
    Expect(legends.size() == database.Legends().size());
    auto entry = database.Legends().begin();
    for (const auto& spLegend : legends) {
        Check(*spLegend, (entry++)->second, database);
    }
    return 0;
}
