#pragma once

#include "CommandLine/Command.h"
#include "FamilyFiles/Manifest/FamilyManifest.h"

#include <QString>
#include <optional>

namespace nuq {

/** Makes a family file from its description. */
class FamilyNewCommand final : public Command
{
public:
    const CommandSpec& Spec() const override;
    void Bind(OptionBinder& binder) override;
    void Check() const override;
    ExitCode Run(Session& session) override;

private:
    struct Options
    {
        QString description;
        QString output;
        bool force = false;
    };

    std::optional<familyfiles::FamilyManifest> Description(Session& session, ExitCode& code) const;

    Options m_options;
};

} // namespace nuq
