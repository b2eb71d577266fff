#include "zept/StringUtil.h"

#include "zept/WideFormatter.h"

#include <QString>
#include <cstdarg>

namespace zept {

std::wstring StringUtil::ToWString(const std::string& utf8)
{
    return QString::fromStdString(utf8).toStdWString();
}

std::wstring StringUtil::FormatWString(const wchar_t* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    WideFormatter formatter(arguments);
    va_end(arguments);
    return formatter.Format(format);
}

} // namespace zept
