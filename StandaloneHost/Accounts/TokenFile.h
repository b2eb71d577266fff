#pragma once

#include <QString>

namespace standalone {

/// A file that holds one token and nothing else.
class TokenFile
{
public:
    /// What one reading gave: a token or a fault, never both.
    struct Reading
    {
        QString token;
        QString fault; ///< For a person, with the path and what mends it.
    };

    /// @param path absolute; neither the file nor its folder need exist
    explicit TokenFile(const QString& path);

    QString Path() const;
    bool Exists() const;

    /// What others may do with the file or its folder that only the owner should: "can be read by others (mode
    /// 0644)". Decided by the permission bits alone, so that it is the same for an administrator. Empty when all
    /// is well, and on platforms that protect the user's folders by other means.
    QString Exposure() const;

    /// Reads the token. Only a regular file of bearable size is read.
    Reading Read() const;

    /// Replaces the file as a whole, readable by its owner only from the first byte on; makes its folder and
    /// closes it to others.
    /// @return why it failed, for a person; empty on success. The token is not part of it.
    QString Write(const QString& token) const;

    /// Removes the file; one that is not there is a success.
    /// @return as Write
    QString Remove() const;

private:
    QString m_path;
};

} // namespace standalone
