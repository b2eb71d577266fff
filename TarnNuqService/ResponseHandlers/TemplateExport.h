#pragma once

#include "TarnNuqServiceExport.h"

/// @file
/// Marks for template instances that live in this library alone, so that every module of a process shares their
/// statics. GCC and Clang want the mark on the declaration only; MSVC refuses dllexport on an `extern template` and
/// wants it on the definition.

#if defined(_MSC_VER) && defined(TarnNuqService_EXPORTS)
#define TARNNUQSERVICE_TEMPLATE_DECLARATION
#define TARNNUQSERVICE_TEMPLATE_DEFINITION TARNNUQSERVICE_EXPORT
#else
#define TARNNUQSERVICE_TEMPLATE_DECLARATION TARNNUQSERVICE_EXPORT
#define TARNNUQSERVICE_TEMPLATE_DEFINITION
#endif
