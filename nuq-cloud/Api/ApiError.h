#pragma once

#include <stdexcept>
#include <string>
#include <utility>

namespace nuqcloud {

/// A request that cannot be answered as asked: becomes the envelope with this code and sentence.
class ApiError : public std::runtime_error
{
public:
    ApiError(int status, std::string code, const std::string& message)
        : std::runtime_error(message), m_status(status), m_code(std::move(code))
    {
    }

    int Status() const { return m_status; }
    const std::string& Code() const { return m_code; }

private:
    int m_status;
    std::string m_code;
};

/// 400: a parameter that is not what was expected; the sentence names both.
ApiError InvalidParameter(const std::string& name, const std::string& value, const std::string& expected);

/// 404: no such thing; `what` reads like "component".
ApiError NotFound(const std::string& what, const std::string& id);

} // namespace nuqcloud
