#include "Accounts/AccountService.h"

#include "Accounts/TokenText.h"
#include "Settings/SettingsStore.h"

#include <QDir>
#include <utility>

namespace standalone {

namespace {

using Kind = TokenOrigin::Kind;

const char* VariableName(TokenEnvironment environment)
{
    return environment == TokenEnvironment::Qa ? "NUQ_TOKEN_QA" : "NUQ_TOKEN";
}

const char* FileVariableName(TokenEnvironment environment)
{
    return environment == TokenEnvironment::Qa ? "NUQ_TOKEN_QA_FILE" : "NUQ_TOKEN_FILE";
}

TokenOrigin Refused(const QString& place, const QString& reason)
{
    return {Kind::Refused, place, reason};
}

} // namespace

AccountService::AccountService(
    const QString& configFolder, const SettingsStore& settings, std::function<void(const QString& token)> secretSeen)
    : m_folder(configFolder + QStringLiteral("/accounts")), m_settings(settings), m_secretSeen(std::move(secretSeen))
{
}

std::wstring AccountService::GetToken() const
{
    return Token(TokenEnvironment::Production);
}

std::wstring AccountService::GetTokenInQa() const
{
    return Token(TokenEnvironment::Qa);
}

int AccountService::GetPermissionInCollaborationProject(
    const std::wstring& projectId, const std::wstring& /*moduleCode*/) const
{
    // The id may hold the separator of settings keys, so it is no part of the key.
    const QJsonObject permissions = m_settings.Value(QStringLiteral("permissions")).toObject();
    return permissions.value(QString::fromStdWString(projectId)).toInt(0);
}

TokenOrigin AccountService::Origin(TokenEnvironment environment) const
{
    return Find(environment).origin;
}

QString AccountService::StoredFile(TokenEnvironment environment) const
{
    return m_folder +
           (environment == TokenEnvironment::Qa ? QStringLiteral("/token-qa") : QStringLiteral("/token-prod"));
}

QString AccountService::Store(TokenEnvironment environment, const QString& token) const
{
    m_secretSeen(token);
    return TokenFile(StoredFile(environment)).Write(token);
}

QString AccountService::Forget(TokenEnvironment environment) const
{
    return TokenFile(StoredFile(environment)).Remove();
}

AccountService::Lookup AccountService::Find(TokenEnvironment environment) const
{
    const QString variable = QString::fromLatin1(VariableName(environment));
    const QString token = TokenFromBytes(qEnvironmentVariable(VariableName(environment)).toUtf8());
    if (!token.isEmpty()) {
        const QString fault = TokenFault(token);
        return fault.isEmpty()
                   ? Lookup{token, {Kind::EnvironmentVariable, variable, {}}}
                   : Lookup{{}, Refused(variable, QStringLiteral("environment variable %1: %2").arg(variable, fault))};
    }
    const QString named = qEnvironmentVariable(FileVariableName(environment));
    if (named.isEmpty()) {
        return FromStoredFile(environment);
    }
    const TokenFile file(QDir::current().absoluteFilePath(named));
    const TokenFile::Reading reading = file.Read();
    return reading.fault.isEmpty() ? Lookup{reading.token, {Kind::NamedFile, file.Path(), file.Exposure()}}
                                   : Lookup{{}, Refused(file.Path(), reading.fault)};
}

AccountService::Lookup AccountService::FromStoredFile(TokenEnvironment environment) const
{
    const TokenFile file(StoredFile(environment));
    if (!file.Exists()) {
        return {};
    }
    const QString exposure = file.Exposure();
    if (!exposure.isEmpty()) {
        const QString advice = QStringLiteral("the token file %1 %2; run: chmod 700 \"%3\" && chmod 600 \"%1\"");
        return {{}, Refused(file.Path(), advice.arg(file.Path(), exposure, m_folder))};
    }
    const TokenFile::Reading reading = file.Read();
    return reading.fault.isEmpty() ? Lookup{reading.token, {Kind::StoredFile, file.Path(), {}}}
                                   : Lookup{{}, Refused(file.Path(), reading.fault)};
}

std::wstring AccountService::Token(TokenEnvironment environment) const
{
    const QString token = Find(environment).token;
    if (!token.isEmpty()) {
        m_secretSeen(token);
    }
    return token.toStdWString();
}

} // namespace standalone
