#include "Commands/CommandList.h"

#include "Commands/CacheCommand.h"
#include "Commands/CategoriesCommand.h"
#include "Commands/ComponentCommand.h"
#include "Commands/ComponentsCommand.h"
#include "Commands/DoctorCommand.h"
#include "Commands/EnvCommand.h"
#include "Commands/ExistsCommand.h"
#include "Commands/FamilyCheckCommand.h"
#include "Commands/FamilyDrawCommand.h"
#include "Commands/FamilyExportCommand.h"
#include "Commands/FamilyNewCommand.h"
#include "Commands/FamilyRenderCommand.h"
#include "Commands/FamilySheetCommand.h"
#include "Commands/FamilyShowCommand.h"
#include "Commands/FamilyUpdateCommand.h"
#include "Commands/FamilyValidateCommand.h"
#include "Commands/LegendsCommand.h"
#include "Commands/MappingsCommand.h"
#include "Commands/ProjectsCommand.h"
#include "Commands/PropertiesCommand.h"
#include "Commands/SearchCommand.h"
#include "Commands/SpecificationsCommand.h"
#include "Commands/ThumbnailCommand.h"
#include "Commands/TourCommand.h"
#include "Commands/TreeCommand.h"
#include "Commands/VersionCommand.h"

namespace nuq {

Commands MakeCommands()
{
    Commands commands;
    commands.push_back(std::make_unique<TourCommand>());
    commands.push_back(std::make_unique<CategoriesCommand>());
    commands.push_back(std::make_unique<ComponentsCommand>());
    commands.push_back(std::make_unique<ComponentCommand>());
    commands.push_back(std::make_unique<ThumbnailCommand>());
    commands.push_back(std::make_unique<SpecificationsCommand>());
    commands.push_back(std::make_unique<PropertiesCommand>());
    commands.push_back(std::make_unique<TreeCommand>());
    commands.push_back(std::make_unique<SearchCommand>());
    commands.push_back(std::make_unique<LegendsCommand>());
    commands.push_back(std::make_unique<MappingsCommand>());
    commands.push_back(std::make_unique<ProjectsCommand>());
    commands.push_back(std::make_unique<ExistsCommand>());
    commands.push_back(std::make_unique<FamilyShowCommand>());
    commands.push_back(std::make_unique<FamilyCheckCommand>());
    commands.push_back(std::make_unique<FamilyUpdateCommand>());
    commands.push_back(std::make_unique<FamilyDrawCommand>());
    commands.push_back(std::make_unique<FamilyRenderCommand>());
    commands.push_back(std::make_unique<FamilyExportCommand>());
    commands.push_back(std::make_unique<FamilyNewCommand>());
    commands.push_back(std::make_unique<FamilyValidateCommand>());
    commands.push_back(std::make_unique<FamilySheetCommand>());
    commands.push_back(std::make_unique<EnvCommand>());
    commands.push_back(std::make_unique<CacheCommand>());
    commands.push_back(std::make_unique<DoctorCommand>());
    commands.push_back(std::make_unique<VersionCommand>());
    return commands;
}

} // namespace nuq
