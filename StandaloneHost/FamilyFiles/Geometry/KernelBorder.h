#pragma once

#include "FamilyFiles/Geometry/GeometryFailure.h"
#include "FamilyFiles/Reason.h"

#include <Standard_Failure.hxx>
#include <exception>
#include <string>

namespace familyfiles {

/// The reason for what the library or this folder has thrown.
Reason ReasonOf(const GeometryFailure& failure, const std::string& step);
Reason ReasonOf(const Standard_Failure& failure, const std::string& step);
Reason ReasonOf(const std::exception& failure, const std::string& step);

/// Runs @p work and turns everything thrown into a reason. Standard_Failure is no std::exception and would pass through
/// handlers of these.
/// @param step asked for the current step when something was thrown
/// @return false when something was thrown
template <typename Work, typename Step>
bool RunAtBorder(const Work& work, const Step& step, Reason& reason)
{
    try {
        work();
        return true;
    } catch (const GeometryFailure& failure) {
        reason = ReasonOf(failure, step());
    } catch (const Standard_Failure& failure) {
        reason = ReasonOf(failure, step());
    } catch (const std::exception& failure) {
        reason = ReasonOf(failure, step());
    }
    return false;
}

/// The same for work that belongs to no step.
template <typename Work>
bool RunAtBorder(const Work& work, Reason& reason)
{
    return RunAtBorder(
        work, [] { return std::string(); }, reason);
}

} // namespace familyfiles
