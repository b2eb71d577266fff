#include "ComponentDatabase/HostObjects/LocalProperty.h"

namespace componentdatabase {

LocalProperty::LocalProperty(const CategoryPropertyRow& row, bool isChinese)
    : m_sortIndex(row.sortIndex), m_id(row.property.guid.toStdWString()), m_code(row.property.code.toStdWString()),
      m_name(row.property.name.In(isChinese).toStdWString()),
      m_groupName(row.property.group.In(isChinese).toStdWString()), m_isInstance(row.property.isInstance),
      m_isEssential(row.property.isEssential), m_isInput(row.isInput), m_storageType(row.property.storageType),
      m_displayType(row.property.displayType)
{
    for (const PropertyValueRow& value : row.values) {
        m_valueIds[value.value.toStdWString()] = value.id;
        m_valueTexts[value.id] = value.text.In(isChinese).toStdWString();
    }
}

} // namespace componentdatabase
