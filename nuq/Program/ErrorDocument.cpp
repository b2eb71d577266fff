#include "Program/ErrorDocument.h"

#include "Errors/ErrorTexts.h"
#include "Program/Interruption.h"

#include <QCoreApplication>

namespace nuq {

using componentlibrary::ErrorGroup;
using componentlibrary::ErrorInfo;

namespace {

void WriteTextIfAny(JsonWriter& json, const char* key, const QString& text)
{
    if (!text.isEmpty())
        json.Member(key, text);
}

void WriteDetails(JsonWriter& json, const ErrorInfo& error)
{
    json.BeginObject();
    WriteTextIfAny(json, "address", error.address);
    json.Key("evidence");
    json.BeginArray();
    for (const QString& line : error.evidence)
        json.Text(line);
    json.EndArray();
    WriteTextIfAny(json, "hint", ErrorHint(error));
    json.Member("httpStatus", error.httpStatus);
    WriteTextIfAny(json, "original", error.original);
    if (error.request != 0)
        json.Member("request", error.request);
    if (error.retryAt.isValid())
        json.Member("retryAt", error.retryAt.toUTC().toString(Qt::ISODate));
    WriteTextIfAny(json, "serverCode", error.serverCode);
    WriteTextIfAny(json, "serverMessage", error.serverMessage);
    json.Member("tries", error.tries);
    json.EndObject();
}

QString Fact(const char* name, const QString& value)
{
    return QCoreApplication::translate("ErrorDetails", name).arg(value);
}

} // namespace

void WriteError(JsonWriter& json, const ErrorInfo& error)
{
    json.Member("code", ErrorId(error.code));
    json.Key("details");
    WriteDetails(json, error);
    json.Member("message", ErrorSentence(error));
}

void WriteError(JsonWriter& json, const char* id, const QString& sentence, const QString& hint)
{
    json.Member("code", id);
    json.Key("details");
    json.BeginObject();
    WriteTextIfAny(json, "hint", hint);
    json.EndObject();
    json.Member("message", sentence);
}

ExitCode ExitCodeOf(const ErrorInfo& error)
{
    switch (GroupOf(error.code)) {
    case ErrorGroup::None:
        return ExitCode::Done;
    case ErrorGroup::NotFound:
        return ExitCode::NotFound;
    case ErrorGroup::Access:
        return ExitCode::Access;
    case ErrorGroup::Network:
        return ExitCode::Network;
    case ErrorGroup::Server:
        return ExitCode::Server;
    case ErrorGroup::Cancelled:
        return Interruption::Code();
    case ErrorGroup::General:
        break;
    }
    return ExitCode::Failed;
}

QStringList ErrorDetails(const ErrorInfo& error)
{
    QStringList lines;
    lines << Fact(QT_TRANSLATE_NOOP("ErrorDetails", "code: %1"), ErrorId(error.code));
    if (!error.address.isEmpty())
        lines << Fact(QT_TRANSLATE_NOOP("ErrorDetails", "address: %1"), error.address);
    if (error.httpStatus != 0)
        lines << Fact(QT_TRANSLATE_NOOP("ErrorDetails", "HTTP status: %1"), QString::number(error.httpStatus));
    if (!error.serverCode.isEmpty())
        lines << Fact(QT_TRANSLATE_NOOP("ErrorDetails", "the server's code: %1"), error.serverCode);
    if (!error.original.isEmpty())
        lines << Fact(QT_TRANSLATE_NOOP("ErrorDetails", "original text: %1"), error.original);
    lines << error.evidence;
    lines << Fact(QT_TRANSLATE_NOOP("ErrorDetails", "tries: %1"), QString::number(error.tries));
    if (error.request != 0)
        lines << Fact(QT_TRANSLATE_NOOP("ErrorDetails", "number in the log: %1"), QString::number(error.request));
    return lines;
}

} // namespace nuq
