#pragma once

#include "Accounts/TokenEnvironment.h"
#include "Accounts/TokenFile.h"
#include "Accounts/TokenOrigin.h"
#include "tarnnuq/UserService.h"

#include <QString>
#include <functional>

namespace standalone {

class SettingsStore;

/// The signed-in user: hands out the tokens, and stores and forgets those of a sign-in.
///
/// A token comes from the first of these sources that is set up:
/// 1. the environment variable NUQ_TOKEN (NUQ_TOKEN_QA for "qa"),
/// 2. the file that NUQ_TOKEN_FILE (NUQ_TOKEN_QA_FILE) names,
/// 3. the file "token-prod" ("token-qa") in the folder "accounts" of the config folder, which Store writes.
///
/// A variable that is empty is not set up. A source that is set up but faulty gives no token, and no later source
/// is asked: another account than the one meant would be used silently. The stored file is refused when others
/// can read or replace it; a named file, whose permissions are often not the user's to choose, is only reported.
///
/// Sources are read at each call, so that a token renewed meanwhile counts at once. Tokens are never logged or
/// printed. Usable from several threads as far as the environment variables are left alone.
class AccountService final : public tarnnuq::UserService
{
public:
    /// @param configFolder the host's config folder, absolute
    /// @param settings holds the permissions: {"permissions": {"<project id>": <level>}}; must outlive this object
    /// @param secretSeen told each token before it is handed out, so that it can be kept out of the log; may be
    ///        called from the thread of any caller
    AccountService(const QString& configFolder, const SettingsStore& settings,
        std::function<void(const QString& token)> secretSeen);

    std::wstring GetToken() const override;
    std::wstring GetTokenInQa() const override;

    /// The level that the settings give for the project; 0, none or unknown, when they give no whole number.
    /// One level holds for all modules of a project.
    int GetPermissionInCollaborationProject(
        const std::wstring& projectId, const std::wstring& moduleCode) const override;

    /// Where the token of an environment comes from, or why there is none.
    TokenOrigin Origin(TokenEnvironment environment) const;

    /// The file that Store writes.
    QString StoredFile(TokenEnvironment environment) const;

    /// Keeps a token for later starts, in a file that only its owner can read.
    /// @return why it could not be stored, for a person; empty on success
    QString Store(TokenEnvironment environment, const QString& token) const;

    /// Removes the stored token. Tokens from environment variables and named files stay in force.
    /// @return as Store; removing what is not there is a success
    QString Forget(TokenEnvironment environment) const;

private:
    struct Lookup
    {
        QString token;
        TokenOrigin origin;
    };

    Lookup Find(TokenEnvironment environment) const;
    Lookup FromStoredFile(TokenEnvironment environment) const;
    std::wstring Token(TokenEnvironment environment) const;

    QString m_folder;
    const SettingsStore& m_settings;
    std::function<void(const QString&)> m_secretSeen;
};

} // namespace standalone
