#pragma once

#include "CommandLine/Command.h"

#include <QString>

namespace nuq {

/** Writes the geometry of a family for other programs. */
class FamilyExportCommand final : public Command
{
public:
    const CommandSpec& Spec() const override;
    void Bind(OptionBinder& binder) override;
    void Check() const override;
    ExitCode Run(Session& session) override;

private:
    struct Options
    {
        QString file;
        QString type;
        QString step;
        QString schema = QStringLiteral("ap214");
        QString gltf;
        QString stl;
    };

    Options m_options;
};

} // namespace nuq
