#include "Commands/ComponentFields.h"

#include "Commands/Texts.h"
#include "Output/VisibleText.h"

#include <QtGlobal>

#include <algorithm>
#include <utility>
#include <vector>

namespace nuq {

FieldList ComponentFields(const tarnnuq::IDetailedProjectComponent& component)
{
    FieldList fields;
    fields.Add(Title(QT_TRANSLATE_NOOP("Titles", "Id")), VisibleText(component.Id));
    fields.Add(Title(QT_TRANSLATE_NOOP("Titles", "Name")), VisibleText(component.Name));
    fields.Add(Title(QT_TRANSLATE_NOOP("Titles", "Category")), VisibleText(component.CategoryCode));
    fields.Add(Title(QT_TRANSLATE_NOOP("Titles", "Version")), std::to_string(component.Version));
    fields.Add(Title(QT_TRANSLATE_NOOP("Titles", "Status")), VisibleText(component.Status));
    std::string label = Title(QT_TRANSLATE_NOOP("Titles", "Family types"));
    for (const std::wstring& name : component.FamilyTypeNames) {
        fields.Add(label, VisibleText(name));
        label.clear();
    }
    label = Title(QT_TRANSLATE_NOOP("Titles", "Thumbnails"));
    using Entry = std::pair<std::wstring, std::vector<std::wstring>>;
    std::vector<Entry> thumbnails(component.Thumbnails.begin(), component.Thumbnails.end());
    // The record keeps the sizes as texts in the order of texts, 128 before 64.
    std::stable_sort(thumbnails.begin(), thumbnails.end(),
        [](const Entry& one, const Entry& other) { return one.first.size() < other.first.size(); });
    const std::size_t longest = thumbnails.empty() ? 0 : thumbnails.back().first.size();
    for (const auto& [size, urls] : thumbnails) {
        const std::string filler(longest - size.size(), ' ');
        for (const std::wstring& url : urls) {
            fields.Add(label, filler + VisibleText(size) + " px  " + VisibleText(url));
            label.clear();
        }
    }
    return fields;
}

} // namespace nuq
