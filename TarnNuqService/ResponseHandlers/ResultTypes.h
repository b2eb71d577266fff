#pragma once

#include "Records/IPagedData.h"

#include <memory>
#include <vector>

namespace tarnnuq {

// Declared only: a receiver of results includes the headers of the records that it reads.
class ICategory;
class ICategoryMapping;
class ICategoryProperty;
class IDetailedProjectComponent;
class ILegend;
class IProjectComponent;
class ISpecification;
class ProjectComponentExistingCheck;

/// A record as replies hand it out; null when the reply held none.
template <typename Record>
using RecordPtr = std::shared_ptr<Record>;

/// A list of records.
template <typename Record>
using RecordList = std::vector<std::shared_ptr<Record>>;

/// One page of a list of records.
template <typename Record>
using RecordPage = IPagedData<RecordList<Record>>;

} // namespace tarnnuq

/// Applies a macro to each result type that has a handler, in the order in which the registry compares them.
#define TARNNUQSERVICE_FOR_EACH_RESULT_TYPE(macro)                                                                     \
    macro(::tarnnuq::RecordPtr<::tarnnuq::ISpecification>) macro(::tarnnuq::RecordPtr<::tarnnuq::IProjectComponent>)   \
        macro(::tarnnuq::RecordPtr<::tarnnuq::IDetailedProjectComponent>)                                              \
            macro(::tarnnuq::RecordList<::tarnnuq::ISpecification>) macro(::tarnnuq::RecordList<::tarnnuq::ILegend>)   \
                macro(::tarnnuq::RecordPage<::tarnnuq::ILegend>)                                                       \
                    macro(::tarnnuq::RecordPtr<::tarnnuq::ICategoryProperty>)                                          \
                        macro(::tarnnuq::RecordList<::tarnnuq::ICategory>)                                             \
                            macro(::tarnnuq::RecordPtr<::tarnnuq::ProjectComponentExistingCheck>)                      \
                                macro(::tarnnuq::RecordList<::tarnnuq::IProjectComponent>)                             \
                                    macro(::tarnnuq::RecordPage<::tarnnuq::IProjectComponent>)                         \
                                        macro(::tarnnuq::RecordList<::tarnnuq::ICategoryMapping>)
