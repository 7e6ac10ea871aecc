#pragma once

#include <QString>

namespace quindle {

/// The MD5 digest of the text's UTF-8 bytes as 32 lowercase hexadecimal digits. It names batteries and
/// computers in stored snapshots, so it can never change to another digest.
QString md5Hex(const QString& text);

/// The SHA-1 digest of the text's UTF-8 bytes as 40 lowercase hexadecimal digits.
QString sha1Hex(const QString& text);

} // namespace quindle
