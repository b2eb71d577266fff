#include "Http/HttpReply.h"

namespace nuqcloud {

std::string WholeBody(const HttpReply& reply)
{
    if (!reply.generated) {
        return reply.prepared ? reply.prepared->plain : reply.body;
    }
    std::string body;
    while (body.size() < reply.generated->length) {
        const std::string piece = reply.generated->make(body.size(), reply.generated->length - body.size());
        if (piece.empty()) {
            break;
        }
        body += piece;
    }
    return body;
}

} // namespace nuqcloud
