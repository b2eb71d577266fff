#include "Api/Envelope.h"

#include "Text/JsonWriter.h"

namespace nuqcloud {

std::string SuccessText(std::string_view data)
{
    std::string text;
    text.reserve(data.size() + 48);
    text += R"({"code":"success","message":"","data":)";
    text += data;
    text += '}';
    return text;
}

HttpReply SuccessReply(std::string_view data)
{
    HttpReply reply;
    reply.body = SuccessText(data);
    return reply;
}

HttpReply ErrorReply(int status, std::string_view code, std::string_view message)
{
    JsonWriter writer;
    writer.BeginObject().Key("code").Text(code).Key("message").Text(message).Key("data").Null().EndObject();
    HttpReply reply;
    reply.status = status;
    reply.body = writer.Take();
    return reply;
}

} // namespace nuqcloud
