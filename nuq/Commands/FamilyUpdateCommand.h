#pragma once

#include "CommandLine/Command.h"

#include <QString>
#include <memory>

namespace familyfiles {
class FamilyModel;
}

namespace tarnnuq {
class ISpecification;
}

namespace nuq {

/** Computes the driven parameters of a specification. */
class FamilyUpdateCommand final : public Command
{
public:
    const CommandSpec& Spec() const override;
    void Bind(OptionBinder& binder) override;
    ExitCode Run(Session& session) override;

private:
    struct Options
    {
        QString file;
        QString specification;
        QString output;
    };

    std::shared_ptr<tarnnuq::ISpecification> Wanted(
        Session& session, const familyfiles::FamilyModel& model, ExitCode& code) const;

    Options m_options;
};

} // namespace nuq
