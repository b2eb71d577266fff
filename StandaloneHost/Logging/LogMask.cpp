#include "Logging/LogMask.h"

#include <QRegularExpression>
#include <QUrl>
#include <algorithm>
#include <array>
#include <mutex>

namespace standalone {

namespace {

struct Rule
{
    QRegularExpression pattern;
    QString replacement;
};

Rule MakeRule(const char* pattern, const char* replacement)
{
    return {QRegularExpression(QString::fromLatin1(pattern), QRegularExpression::CaseInsensitiveOption),
        QString::fromLatin1(replacement)};
}

/// The first rule takes line breaks too: a token that holds one must not leave its rest behind.
const std::array<Rule, 5>& Rules()
{
    static const std::array<Rule, 5> rules{
        MakeRule(R"((authorization header:\s?+)[\s\S]++)", R"(\1***)"),
        MakeRule(R"re((authorization\\?["']?\s*[:=]\s*\\?["']?)(?!\*\*\*)[^"'\r\n\\]++)re", R"(\1***)"),
        MakeRule(R"(\b(bearer\s+)(?!\*\*\*)[^\s"',;\\]++)", R"(\1***)"),
        MakeRule(R"re((token\\?["']?\s*[:=]\s*\\?["']?)(?!\*\*\*)[^&\s"'#,;<>\\]++)re", R"(\1***)"),
        MakeRule(R"((://)[^/?#\s"<>\\]*@)", R"(\1***@)"),
    };
    return rules;
}

QString WithoutPatterns(QString text)
{
    for (const Rule& rule : Rules()) {
        text.replace(rule.pattern, rule.replacement);
    }
    return text;
}

/// "https://user:passw" may be the beginning of a user info whose "@" was cut off.
QString WithoutOpenUserInfo(QString text)
{
    static const QRegularExpression open(QStringLiteral(R"((://)[^/?#\s"<>\\]*\z)"));
    return text.replace(open, QStringLiteral(R"(\1)"));
}

/// The spellings in which a secret may come back: as it is, inside a URL, inside a JSON text.
QStringList Spellings(const QString& secret)
{
    QString json = secret;
    json.replace(QLatin1Char('\\'), QLatin1String("\\\\"))
        .replace(QLatin1Char('"'), QLatin1String("\\\""))
        .replace(QLatin1Char('/'), QLatin1String("\\/"));
    return {secret, QString::fromLatin1(QUrl::toPercentEncoding(secret)), json};
}

void InsertLongestFirst(QStringList& secrets, const QString& secret)
{
    if (secrets.contains(secret)) {
        return;
    }
    const auto longer = [](const QString& a, const QString& b) { return a.size() > b.size(); };
    secrets.insert(std::upper_bound(secrets.begin(), secrets.end(), secret, longer), secret);
}

} // namespace

void LogMask::AddSecret(const QString& secret)
{
    if (secret.size() < kShortestSecret) {
        return;
    }
    const std::unique_lock<std::shared_mutex> lock(m_mutex);
    for (const QString& spelling : Spellings(secret)) {
        InsertLongestFirst(m_secrets, spelling);
    }
}

QString LogMask::Apply(const QString& text) const
{
    return WithoutPatterns(WithoutKnownSecrets(text));
}

QString LogMask::ApplyToBeginning(const QString& beginning) const
{
    QString masked = Apply(beginning);
    masked.chop(std::max(0, LongestSecret() - 1));
    return WithoutOpenUserInfo(masked);
}

QString LogMask::WithoutKnownSecrets(QString text) const
{
    const std::shared_lock<std::shared_mutex> lock(m_mutex);
    for (const QString& secret : m_secrets) {
        text.replace(secret, QLatin1String("***"));
    }
    return text;
}

int LogMask::LongestSecret() const
{
    const std::shared_lock<std::shared_mutex> lock(m_mutex);
    return m_secrets.isEmpty() ? 0 : m_secrets.front().size();
}

} // namespace standalone
