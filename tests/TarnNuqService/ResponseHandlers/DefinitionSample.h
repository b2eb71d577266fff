#pragma once

#include "TarnNuqService/ResponseHandlers/JsonShapes.h"

namespace tarnnuq {
class IParameterDefinition;
}

namespace testsupport {

/// A parameter definition in which every member has a value of its own, as the cloud sends it.
QJsonObject GoodDefinitionObject();

/// What becomes of it.
tarnnuq::IParameterDefinition GoodDefinition();

/// The members of a definition.
const std::vector<MemberRow<tarnnuq::IParameterDefinition>>& DefinitionMembers();

} // namespace testsupport
