#pragma once

#include <string>

namespace nuqcloud {

/// A certificate and its key, both as PEM.
struct TlsIdentity
{
    std::string certificatePem;
    std::string privateKeyPem;
};

/// What is wrong with a certificate that is made on purpose.
enum class CertificateFault
{
    None,
    Expired,
    NotYetValid,
    WrongHost
};

/// Makes a self-signed certificate for localhost, 127.0.0.1, ::1 and the given host, with a new key.
/// @throws std::runtime_error when OpenSSL cannot
TlsIdentity MakeTlsIdentity(const std::string& host, CertificateFault fault);

/// Reads certificate and key files.
/// @throws std::runtime_error with a sentence for the user
TlsIdentity ReadTlsIdentity(const std::string& certificateFile, const std::string& keyFile);

} // namespace nuqcloud
