#pragma once

class QJsonObject;

namespace tarnnuq {

class IParameterDefinition;

/// Fills a parameter definition from its JSON object; members that are missing or of another type give defaults.
void ReadParameterDefinition(const QJsonObject& object, IParameterDefinition& definition);

} // namespace tarnnuq
