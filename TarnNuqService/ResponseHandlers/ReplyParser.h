#pragma once

#include "TarnNuqServiceExport.h"

#include <QtGlobal>
#include <string>

class QJsonObject;
class QNetworkReply;

namespace tarnnuq {

/// The wording of the request error text and of the log records around a reply.
enum class ReplyWording
{
    Plain,    ///< "request error:http code - …"; each log record is one text.
    Composite ///< "request error: http code - …"; transport errors and successes are two-part records.
};

/// What all response handlers do with a finished reply before they look at its payload: transport checks, log
/// records, JSON. One place, so that the two handler branches differ in wording alone.
/// @internal Visible only because the handler templates are; not part of what hosts call.
class TARNNUQSERVICE_EXPORT ReplyParser
{
public:
    ReplyParser() = delete;

    /// Reads a finished reply into the object at the top of its JSON body.
    ///
    /// Writes one information record for a body that arrived and one error record for each failure but a null reply.
    /// The body of a failed reply is not read. The reply is neither closed nor deleted.
    /// @param reply the finished reply; may be null
    /// @param wording how texts and records are worded
    /// @param body receives the top-level object; an empty one when the top level is an array
    /// @param error receives the error text; left alone on success
    /// @return whether the body was parsed
    static bool Parse(QNetworkReply* reply, ReplyWording wording, QJsonObject& body, std::wstring& error);

    /// Checks the reply envelope: the call succeeded when "code", trimmed and lower-cased, is "success".
    ///
    /// A failure is logged as one error record.
    /// @param body the top-level object
    /// @param error receives the error text; left alone on success
    /// @return whether the envelope reports success
    static bool CheckEnvelope(const QJsonObject& body, std::wstring& error);
};

} // namespace tarnnuq
