#include "tarnnuq/UrlEncoder.h"

#include <QByteArray>
#include <QTextCodec>

namespace tarnnuq {

namespace {

QByteArray BytesOf(const QString& text, const char* encoding)
{
    const QTextCodec* const codec = encoding != nullptr ? QTextCodec::codecForName(encoding) : nullptr;
    if (codec == nullptr) {
        return text.toUtf8();
    }
    QTextCodec::ConverterState withoutByteOrderMark(QTextCodec::IgnoreHeader);
    return codec->fromUnicode(text.constData(), text.size(), &withoutByteOrderMark);
}

} // namespace

QString UrlEncoder::Encode(const QString& text, const char* encoding)
{
    return QString::fromLatin1(BytesOf(text, encoding).toPercentEncoding());
}

} // namespace tarnnuq
