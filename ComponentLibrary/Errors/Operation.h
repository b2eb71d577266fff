#pragma once

namespace componentlibrary {

/** What the user wanted when an error came up; an error names it before it names the cause. */
enum class Operation
{
    LoadCategories,
    LoadComponents,
    LoadComponent,
    CheckExistence,
    LoadSpecifications,
    LoadSpecification,
    LoadPropertyTemplate,
    LoadProjects,
    LoadLegends,
    LoadMappings,
    CheckService,
    LoadThumbnail
};

} // namespace componentlibrary
