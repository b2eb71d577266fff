#include "PropertySvcs/CategoryConverters.h"

#include "Common/DebugWarning.h"
#include "Common/MakeRecord.h"
#include "Records/ICategory.h"
#include "tarn/ITarnCategoryInfo.h"
#include "tarn/ITarnDisciplineInfo.h"

namespace tarnnuq {

namespace {

constexpr WarningSource DisciplineSource{
    "PropertySvcs/CategoryConverters.cpp", __LINE__, "tarnnuq::GetCategoryFromTarnDisciplineInfo"};
constexpr WarningSource CategorySource{
    "PropertySvcs/CategoryConverters.cpp", __LINE__, "tarnnuq::GetCategoryFromTarnCategoryInfo"};

template <typename Info>
std::shared_ptr<ICategory> Convert(const Info* info, const WarningSource& source, const wchar_t* nullMessage)
{
    if (!info) {
        WarnNull(source, nullMessage);
        return nullptr;
    }
    auto spCategory = MakeRecord<ICategory>();
    if (!spCategory) {
        WarnNull(source, L"spCategory为空");
        return nullptr;
    }
    spCategory->IdText = info->GetId();
    spCategory->Name = info->GetName();
    spCategory->Code = info->GetCode();
    spCategory->Count = 0;
    return spCategory;
}

} // namespace

std::shared_ptr<ICategory> GetCategoryFromTarnDisciplineInfo(const tarn::ITarnDisciplineInfo* discipInfo)
{
    return Convert(discipInfo, DisciplineSource, L"discipInfo为空");
}

std::shared_ptr<ICategory> GetCategoryFromTarnCategoryInfo(const tarn::ITarnCategoryInfo* categoryInfo)
{
    return Convert(categoryInfo, CategorySource, L"categoryInfo为空");
}

} // namespace tarnnuq
