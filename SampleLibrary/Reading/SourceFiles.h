#pragma once

#include <QString>
#include <string>
#include <vector>

namespace samplelibrary {

/// The text files that the library is made from, by default those compiled into the program.
///
/// Names are relative to the root and use "/" on every platform, for example "sizes/motor.tsv".
class SourceFiles
{
public:
    /// The files compiled into this program.
    SourceFiles();

    /// The files below @p root, a folder on disk or in a Qt resource.
    explicit SourceFiles(QString root);

    /// Whole text of a file, UTF-8. Throws SourceError when it cannot be read.
    std::string Text(const std::string& name) const;

    /// Names of all files directly in @p folder, sorted.
    std::vector<std::string> Names(const std::string& folder) const;

    /// SHA-256 over the names and bytes of all files and over the program's own revision, as hexadecimal digits: two
    /// equal digests mean that the same options make the same library.
    std::string Digest() const;

private:
    QString m_root;
};

} // namespace samplelibrary
