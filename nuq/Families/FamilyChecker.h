#pragma once

#include "Families/SpecificationCheck.h"
#include "Families/TypeSpecification.h"

#include <QString>
#include <vector>

namespace nuq {

class Session;

/** What a family file and the specifications that were tried on it come to. */
struct CheckedFamily
{
    QString file;
    QString name;
    familyfiles::Reason reason; ///< why the file could not be used at all
    std::vector<CheckedSpecification> results;

    bool IsInOrder() const;
};

/**
 * Try specifications on a copy of a family file through the library's family file service; the file itself is only
 * read. Ends early after Ctrl-C.
 * @param specification a type of the family or a file with specifications; empty: all types of the family
 * @return nothing with @p code set when there is no such specification
 */
std::optional<CheckedFamily> CheckFamily(
    Session& session, const QString& file, const QString& specification, ExitCode& code);

} // namespace nuq
