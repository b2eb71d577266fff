#include "support/TestCertificate.h"

#include <QByteArray>
#include <gtest/gtest.h>
#include <memory>
#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/x509v3.h>

namespace testsupport {

namespace {

template <auto Free>
struct Deleter
{
    template <typename T>
    void operator()(T* object) const
    {
        Free(object);
    }
};

using KeyHandle = std::unique_ptr<EVP_PKEY, Deleter<EVP_PKEY_free>>;
using CertificateHandle = std::unique_ptr<X509, Deleter<X509_free>>;
using Extension = std::unique_ptr<X509_EXTENSION, Deleter<X509_EXTENSION_free>>;
using Buffer = std::unique_ptr<BIO, Deleter<BIO_free_all>>;

void AddExtension(X509* certificate, int kind, const char* value)
{
    X509V3_CTX context;
    X509V3_set_ctx_nodb(&context);
    X509V3_set_ctx(&context, certificate, certificate, nullptr, nullptr, 0);
    const Extension extension(X509V3_EXT_conf_nid(nullptr, &context, kind, value));
    X509_add_ext(certificate, extension.get(), -1);
}

void SetNames(X509* certificate)
{
    X509_NAME* const name = X509_get_subject_name(certificate);
    const auto* const host = reinterpret_cast<const unsigned char*>("localhost");
    X509_NAME_add_entry_by_txt(name, "CN", MBSTRING_ASC, host, -1, -1, 0);
    X509_set_issuer_name(certificate, name);
    AddExtension(certificate, NID_subject_alt_name, "DNS:localhost,IP:127.0.0.1");
    AddExtension(certificate, NID_basic_constraints, "critical,CA:TRUE");
}

CertificateHandle SelfSigned(EVP_PKEY* key)
{
    constexpr long version3 = 2;
    constexpr long day = 24L * 60 * 60;
    CertificateHandle certificate(X509_new());
    X509_set_version(certificate.get(), version3);
    ASN1_INTEGER_set(X509_get_serialNumber(certificate.get()), 1);
    X509_gmtime_adj(X509_getm_notBefore(certificate.get()), -day);
    X509_gmtime_adj(X509_getm_notAfter(certificate.get()), day);
    X509_set_pubkey(certificate.get(), key);
    SetNames(certificate.get());
    X509_sign(certificate.get(), key, EVP_sha256());
    return certificate;
}

QByteArray TextOf(BIO* buffer)
{
    char* bytes = nullptr;
    const long size = BIO_get_mem_data(buffer, &bytes);
    return QByteArray(bytes, static_cast<int>(size));
}

} // namespace

TestCertificate::TestCertificate()
{
    const KeyHandle key(EVP_EC_gen("P-256"));
    const CertificateHandle certificate = SelfSigned(key.get());
    const Buffer certificateText(BIO_new(BIO_s_mem()));
    const Buffer keyText(BIO_new(BIO_s_mem()));
    PEM_write_bio_X509(certificateText.get(), certificate.get());
    PEM_write_bio_PrivateKey(keyText.get(), key.get(), nullptr, nullptr, 0, nullptr, nullptr);
    m_certificate = QSslCertificate(TextOf(certificateText.get()));
    m_key = QSslKey(TextOf(keyText.get()), QSsl::Ec);
    EXPECT_FALSE(m_certificate.isNull() || m_key.isNull()) << "no test certificate could be made";
}

} // namespace testsupport
