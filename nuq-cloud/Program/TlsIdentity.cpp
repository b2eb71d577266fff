#include "Program/TlsIdentity.h"

#include <array>
#include <fstream>
#include <memory>
#include <openssl/bio.h>
#include <openssl/ec.h>
#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/rand.h>
#include <openssl/x509v3.h>
#include <sstream>
#include <stdexcept>

namespace nuqcloud {
namespace {

constexpr long kDay = 24L * 60 * 60;
constexpr long kVersion3 = 2;

template <typename Object, void (*Release)(Object*)>
struct Releaser
{
    void operator()(Object* object) const { Release(object); }
};

using Certificate = std::unique_ptr<X509, Releaser<X509, &X509_free>>;
using Key = std::unique_ptr<EVP_PKEY, Releaser<EVP_PKEY, &EVP_PKEY_free>>;
using Extension = std::unique_ptr<X509_EXTENSION, Releaser<X509_EXTENSION, &X509_EXTENSION_free>>;

struct BioReleaser
{
    void operator()(BIO* bio) const { BIO_free(bio); }
};

using Bio = std::unique_ptr<BIO, BioReleaser>;

void Require(bool done, const char* step)
{
    if (!done) {
        throw std::runtime_error(std::string("Cannot make a TLS certificate: ") + step + " failed.");
    }
}

std::string Contents(BIO* bio)
{
    char* data = nullptr;
    const long length = BIO_get_mem_data(bio, &data);
    return std::string(data, static_cast<std::size_t>(length));
}

bool IsAddress(const std::string& host)
{
    return host.find(':') != std::string::npos || host.find_first_not_of("0123456789.") == std::string::npos;
}

std::string AlternativeNames(const std::string& host, CertificateFault fault)
{
    if (fault == CertificateFault::WrongHost) {
        return "DNS:another-host.example";
    }
    std::string names = "DNS:localhost,IP:127.0.0.1,IP:::1";
    if (host != "localhost" && host != "127.0.0.1" && host != "::1") {
        names += (IsAddress(host) ? ",IP:" : ",DNS:") + host;
    }
    return names;
}

/// Begins a day early, so that a client whose clock lags a little accepts it too.
void SetValidity(X509* certificate, CertificateFault fault)
{
    long begin = -kDay;
    long end = 30 * kDay;
    if (fault == CertificateFault::Expired) {
        begin = -30 * kDay;
        end = -kDay;
    } else if (fault == CertificateFault::NotYetValid) {
        begin = 10 * kDay;
    }
    Require(X509_gmtime_adj(X509_getm_notBefore(certificate), begin) != nullptr &&
                X509_gmtime_adj(X509_getm_notAfter(certificate), end) != nullptr,
        "setting its dates");
}

void SetName(X509* certificate)
{
    X509_NAME* const name = X509_get_subject_name(certificate);
    const auto* const text = reinterpret_cast<const unsigned char*>("nuq-cloud");
    Require(X509_NAME_add_entry_by_txt(name, "CN", MBSTRING_ASC, text, -1, -1, 0) == 1 &&
                X509_set_issuer_name(certificate, name) == 1,
        "naming it");
}

void AddExtension(X509* certificate, int kind, const std::string& value)
{
    X509V3_CTX context;
    X509V3_set_ctx(&context, certificate, certificate, nullptr, nullptr, 0);
    const Extension extension(X509V3_EXT_conf_nid(nullptr, &context, kind, value.c_str()));
    Require(extension && X509_add_ext(certificate, extension.get(), -1) == 1, "adding an extension");
}

void SetSerialNumber(X509* certificate)
{
    std::array<unsigned char, 4> bytes{};
    Require(RAND_bytes(bytes.data(), static_cast<int>(bytes.size())) == 1, "drawing a serial number");
    const long number = (bytes[0] << 16) + (bytes[1] << 8) + bytes[2] + 1;
    Require(ASN1_INTEGER_set(X509_get_serialNumber(certificate), number) == 1, "setting its serial number");
}

Certificate SelfSigned(EVP_PKEY* key, const std::string& host, CertificateFault fault)
{
    Certificate certificate(X509_new());
    Require(certificate && X509_set_version(certificate.get(), kVersion3) == 1, "making it");
    SetSerialNumber(certificate.get());
    SetValidity(certificate.get(), fault);
    SetName(certificate.get());
    AddExtension(certificate.get(), NID_basic_constraints, "critical,CA:TRUE");
    AddExtension(certificate.get(), NID_subject_alt_name, AlternativeNames(host, fault));
    Require(X509_set_pubkey(certificate.get(), key) == 1 && X509_sign(certificate.get(), key, EVP_sha256()) > 0,
        "signing it");
    return certificate;
}

std::string ReadFile(const std::string& file, const char* what)
{
    std::ifstream stream(file, std::ios::binary);
    std::ostringstream text;
    if (!stream || !(text << stream.rdbuf()) || text.str().find("-----BEGIN") == std::string::npos) {
        throw std::runtime_error(std::string("The ") + what + " \"" + file + "\" cannot be read as PEM.");
    }
    return text.str();
}

} // namespace

TlsIdentity MakeTlsIdentity(const std::string& host, CertificateFault fault)
{
    const Key key(EVP_EC_gen("P-256"));
    Require(key != nullptr, "making its key");
    const Certificate certificate = SelfSigned(key.get(), host, fault);
    const Bio certificateText(BIO_new(BIO_s_mem()));
    const Bio keyText(BIO_new(BIO_s_mem()));
    Require(certificateText && keyText && PEM_write_bio_X509(certificateText.get(), certificate.get()) == 1 &&
                PEM_write_bio_PrivateKey(keyText.get(), key.get(), nullptr, nullptr, 0, nullptr, nullptr) == 1,
        "writing it");
    return {Contents(certificateText.get()), Contents(keyText.get())};
}

TlsIdentity ReadTlsIdentity(const std::string& certificateFile, const std::string& keyFile)
{
    return {ReadFile(certificateFile, "certificate"), ReadFile(keyFile, "private key")};
}

} // namespace nuqcloud
