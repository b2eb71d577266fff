#pragma once

#include "Output/JsonWriter.h"
#include "Records/ICategory.h"
#include "Records/IDetailedProjectComponent.h"
#include "Records/IParameter.h"
#include "Records/IParameterDefinition.h"
#include "Records/IProjectComponent.h"
#include "Records/ISpecification.h"

#include <optional>

namespace nuq {

// The records as JSON, one function a record; docs/json.md describes the members. Ids are texts. A null record inside
// another one is written as null.

/** @param depth number of ancestors in the tree, when the list is a tree */
void WriteCategory(JsonWriter& json, const tarnnuq::ICategory& category, std::optional<int> depth = std::nullopt);

/** A category of the public category service, which knows neither codes nor leaves. */
void WriteServiceCategory(JsonWriter& json, const tarnnuq::ICategory& category);

void WriteComponent(JsonWriter& json, const tarnnuq::IProjectComponent& component);

void WriteComponentDetail(JsonWriter& json, const tarnnuq::IDetailedProjectComponent& component);

void WriteDefinition(JsonWriter& json, const tarnnuq::IParameterDefinition& definition);

void WriteSpecification(JsonWriter& json, const tarnnuq::ISpecification& specification);

} // namespace nuq
