#include "TarnNuqService/CategorySvcs/CategoryBody.h"

#include <algorithm>
#include <iterator>

namespace testsupport {

namespace {

QByteArray RowText(const CategoryRow& row)
{
    return "{\"id\":" + QByteArray::number(row.id) + ",\"parentId\":" + QByteArray::number(row.parentId) +
           ",\"weight\":" + QByteArray::number(row.weight, 'g', 17) + ",\"count\":" + QByteArray::number(row.count) +
           ",\"name\":\"" + row.name + "\"}";
}

template <typename Value, typename List, typename Read>
std::vector<Value> Collect(const List& list, Read&& read)
{
    std::vector<Value> values;
    std::transform(list.begin(), list.end(), std::back_inserter(values), read);
    return values;
}

} // namespace

QByteArray CategoryBody(const std::vector<CategoryRow>& rows)
{
    QByteArray data;
    for (const CategoryRow& row : rows) {
        data += (data.isEmpty() ? "" : ",") + RowText(row);
    }
    return SuccessBody("[" + data + "]");
}

QByteArray SuccessBody(const QByteArray& data)
{
    return "{\"code\":\"success\",\"message\":\"\",\"data\":" + data + "}";
}

std::vector<int> IdsOf(const QList<tarnnuq::ICategory>& categories)
{
    return Collect<int>(categories, [](const tarnnuq::ICategory& category) { return category.Id; });
}

std::vector<int> IdsOf(const QList<tarnnuq::ICategory*>& categories)
{
    return Collect<int>(categories, [](const tarnnuq::ICategory* category) { return category->Id; });
}

std::vector<int> CountsOf(const QList<tarnnuq::ICategory>& categories)
{
    return Collect<int>(categories, [](const tarnnuq::ICategory& category) { return category.Count; });
}

std::vector<std::wstring> NamesOf(const QList<tarnnuq::ICategory>& categories)
{
    return Collect<std::wstring>(categories, [](const tarnnuq::ICategory& category) { return category.Name; });
}

} // namespace testsupport
