#include "ComponentDatabase/HostObjects/LocalCategories.h"

namespace componentdatabase {

struct LocalCategories::Tree
{
    std::map<qint64, LocalDiscipline> disciplines;
    std::unordered_map<qint64, LocalCategory> categories;
    std::map<std::wstring, const tarn::ITarnDisciplineInfo*> disciplinesByCode;
    std::unordered_map<std::wstring, const tarn::ITarnCategoryInfo*> byCode;
};

LocalCategories::LocalCategories(const LocalDatabase& database, bool isChinese)
    : m_database(database), m_isChinese(isChinese)
{
}

LocalCategories::~LocalCategories() = default;

std::unique_ptr<LocalCategories::Tree> LocalCategories::MakeTree(
    const ComponentDatabase& database, DatabaseReason& reason) const
{
    auto tree = std::make_unique<Tree>();
    for (const DisciplineRow& row : database.Disciplines(reason)) {
        const LocalDiscipline& added =
            tree->disciplines.emplace(row.id, LocalDiscipline(row, m_isChinese)).first->second;
        tree->disciplinesByCode[added.GetCode()] = &added;
    }
    for (const CategoryRow& row : database.Categories(reason)) {
        const auto [place, isNew] = tree->categories.try_emplace(row.id, row, m_database, m_isChinese);
        tree->byCode.emplace(place->second.GetCode(), &place->second);
        const auto discipline = tree->disciplines.find(row.disciplineId);
        const auto above = tree->categories.find(row.parentId);
        if (row.parentId == 0 && discipline != tree->disciplines.end()) {
            discipline->second.AddCategory(place->second);
        } else if (row.parentId != row.id && above != tree->categories.end()) {
            above->second.AddSubCategory(place->second);
        }
    }
    return tree;
}

const LocalCategories::Tree* LocalCategories::Read() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const ComponentDatabase* const database = m_tree == nullptr ? m_database.Get() : nullptr;
    if (database != nullptr) {
        DatabaseReason reason;
        std::unique_ptr<Tree> tree = MakeTree(*database, reason);
        m_database.Tell(reason);
        if (!reason) {
            m_tree = std::move(tree);
        }
    }
    return m_tree.get();
}

bool LocalCategories::GetDisciplines(std::map<std::wstring, const tarn::ITarnDisciplineInfo*>& disciplines) const
{
    const Tree* const tree = Read();
    if (tree == nullptr) {
        return false;
    }
    disciplines = tree->disciplinesByCode;
    return true;
}

bool LocalCategories::FindCategoryByCode(const std::wstring& code, const tarn::ITarnCategoryInfo*& info) const
{
    const Tree* const tree = Read();
    if (tree == nullptr) {
        return false;
    }
    const auto found = tree->byCode.find(code);
    if (found == tree->byCode.end()) {
        return false;
    }
    info = found->second;
    return true;
}

} // namespace componentdatabase
