#pragma once

#include "Records/ICategory.h"

#include <QByteArray>
#include <QList>
#include <vector>

namespace testsupport {

/// One category of a reply.
struct CategoryRow
{
    int id;
    int parentId = 0;
    double weight = 0.0;
    int count = 0;
    QByteArray name = "";
};

/// A good reply with these categories, in this order.
QByteArray CategoryBody(const std::vector<CategoryRow>& rows);

/// A good reply with this payload.
QByteArray SuccessBody(const QByteArray& data);

/// The ids in order.
std::vector<int> IdsOf(const QList<tarnnuq::ICategory>& categories);
std::vector<int> IdsOf(const QList<tarnnuq::ICategory*>& categories);
/// The counts in order.
std::vector<int> CountsOf(const QList<tarnnuq::ICategory>& categories);
/// The names in order.
std::vector<std::wstring> NamesOf(const QList<tarnnuq::ICategory>& categories);

} // namespace testsupport
