#pragma once

#include <QString>

namespace quindle {

/// Text from UTF-8, short because tables of cases are full of it.
inline QString u(const char* text)
{
    return QString::fromUtf8(text);
}

inline QString latin(const char* text)
{
    return QString::fromLatin1(text);
}

} // namespace quindle
