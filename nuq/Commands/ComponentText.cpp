#include "Commands/ComponentText.h"

#include "Commands/Texts.h"
#include "Output/VisibleText.h"

namespace nuq {

Table ComponentTable(const Session& session)
{
    return session.MakeTable(
        {{Title(QT_TRANSLATE_NOOP("Titles", "ID"))}, {Title(QT_TRANSLATE_NOOP("Titles", "CATEGORY"))},
            {Title(QT_TRANSLATE_NOOP("Titles", "NAME")), Table::Align::Left, true},
            {Title(QT_TRANSLATE_NOOP("Titles", "VERSION")), Table::Align::Right},
            {Title(QT_TRANSLATE_NOOP("Titles", "STATUS"))}});
}

void AddComponents(Table& table, const std::vector<std::shared_ptr<tarnnuq::IProjectComponent>>& components)
{
    for (const auto& component : components) {
        table.AddRow({VisibleText(component->Id), VisibleText(component->CategoryCode), VisibleText(component->Name),
            std::to_string(component->Version), VisibleText(component->Status)});
    }
}

} // namespace nuq
