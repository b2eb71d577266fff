#include "PropertySvcs/LocalLegends_p.h"

#include "Common/DebugWarning.h"
#include "Common/MakeRecord.h"
#include "tarn/TarnComponentSqlUtil.h"
#include "tarn/TarnFilePathSettings.h"
#include "zept/StringUtil.h"

#include <QString>
#include <map>

namespace tarnnuq {

namespace {

// The database's paths have backslashes on every platform.
std::wstring NameOfFile(const std::wstring& path)
{
    const std::size_t separator = path.rfind(L'\\');
    return separator == std::wstring::npos ? path : path.substr(separator + 1);
}

} // namespace

RecordList<ILegend> ReadLocalLegends(
    const std::wstring& categoryCode, ILegend::LegendType type, const WarningSource& source)
{
    const std::wstring database = tarn::TarnFilePathSettings::GetCurrentProductDBFilePath();
    const std::wstring folder = tarn::TarnFilePathSettings::GetCurrentProduct2DFolderPath();
    std::map<std::wstring, std::wstring> files;
    if (!tarn::TarnComponentSqlUtil::GetLocalLegendsOfTheCategory(
            database, categoryCode, static_cast<tarn::TarnLegendType>(type), files)) {
        return {};
    }
    RecordList<ILegend> legends;
    legends.reserve(files.size());
    for (const auto& [id, file] : files) {
        auto pLegend = MakeRecord<ILegend>();
        if (!pLegend) {
            WarnNull(source, L"pLegend为空");
            continue;
        }
        pLegend->Id = QString::fromStdWString(id).toLongLong();
        pLegend->Type = type;
        pLegend->Name = NameOfFile(file);
        pLegend->Thumbnail = zept::StringUtil::FormatWString(L"%s\\%s.png", folder.c_str(), file.c_str());
        legends.push_back(std::move(pLegend));
    }
    return legends;
}

} // namespace tarnnuq
