#pragma once

#include "ComponentDatabase/HostObjects/LocalDiscipline.h"
#include "tarn/ITarnCategoryInfoUtils.h"

#include <unordered_map>

namespace componentdatabase {

/// The host's category library over the component database. The tree is read when it is first asked for; its objects
/// live as long as this one. Usable from several threads.
class LocalCategories final : public tarn::ITarnCategoryInfoUtils
{
public:
    /// @param database must live longer
    /// @param isChinese the language of names and texts: Chinese or English
    LocalCategories(const LocalDatabase& database, bool isChinese);
    ~LocalCategories() override;

    bool GetDisciplines(std::map<std::wstring, const tarn::ITarnDisciplineInfo*>& disciplines) const override;
    bool FindCategoryByCode(const std::wstring& code, const tarn::ITarnCategoryInfo*& info) const override;

private:
    struct Tree;

    /// The tree; null when there is no database or it could not be read.
    const Tree* Read() const;
    std::unique_ptr<Tree> MakeTree(const ComponentDatabase& database, DatabaseReason& reason) const;

    const LocalDatabase& m_database;
    bool m_isChinese;
    mutable std::mutex m_mutex;
    mutable std::unique_ptr<Tree> m_tree;
};

} // namespace componentdatabase
