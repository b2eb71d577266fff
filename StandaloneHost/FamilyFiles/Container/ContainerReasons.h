#pragma once

#include "FamilyFiles/Reason.h"

#include <cstddef>
#include <string>

namespace familyfiles {

/// What can be wrong with a family file as a file and as an archive, in words.
Reason FileNotFound(const std::string& path);
Reason FileUnreadable(const std::string& path, const std::string& detail);
Reason FileTooLarge(const std::string& path, std::size_t limit);
Reason FileNotWritten(const std::string& path, const std::string& detail);
Reason NotAContainer();
Reason DamagedContainer(const std::string& detail);
Reason EncryptedEntry(const std::string& entry);
Reason BadEntryName(const std::string& entry);
Reason DuplicateEntry(const std::string& entry);
Reason TooManyEntries(std::size_t limit);
Reason EntryTooLarge(const std::string& entry, std::size_t limit);
Reason EntriesTooLarge(std::size_t limit);
Reason DamagedEntry(const std::string& entry, const std::string& detail);
Reason MissingEntry(const std::string& entry);

} // namespace familyfiles
