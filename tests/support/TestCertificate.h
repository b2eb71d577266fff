#pragma once

#include <QSslCertificate>
#include <QSslKey>

namespace testsupport {

/// A self-signed certificate for "localhost" and 127.0.0.1 with its key, made anew for each object.
class TestCertificate
{
public:
    TestCertificate();

    const QSslCertificate& Certificate() const { return m_certificate; }
    const QSslKey& Key() const { return m_key; }

private:
    QSslCertificate m_certificate;
    QSslKey m_key;
};

} // namespace testsupport
