#pragma once

#include <optional>

#include <QByteArrayView>

namespace quindle {

/// The double nearest to a decimal number: digits with an optional minus, point and exponent, or "inf",
/// "infinity", "nan" and "nan(...)" in any case. One beyond the range of a double is infinite or 0. Nothing
/// for any other text, a plus, blanks around it and hexadecimal digits included. Knows no locale; the same on
/// every system, some of whose C++ libraries have no std::from_chars for doubles. Any thread.
std::optional<double> realFromText(QByteArrayView text);

} // namespace quindle
