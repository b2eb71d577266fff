#pragma once

#include <filesystem>
#include <string>

namespace nuqcloud {

/// The folder below the application's that holds the environment files.
constexpr char kConfigFolder[] = "nuq_env_config";

/// Writes the environment files that point an application at this server: DIR/nuq_env_config/...
///
/// Each file is put in place whole, the main one last, so that nobody reads half of them.
/// @param url the server's address without a slash at its end
/// @throws std::runtime_error with a sentence for the user
void WriteEnvironmentFiles(const std::filesystem::path& folder, const std::string& url);

/// Puts a file in place whole: written beside it, then renamed.
/// @throws std::runtime_error with a sentence for the user
void WriteFileAtomically(const std::filesystem::path& file, const std::string& text);

} // namespace nuqcloud
