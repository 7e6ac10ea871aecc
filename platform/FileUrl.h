#pragma once

#include <QString>

/// File URLs as in login items. Pure functions for any thread; none looks at the disk.
namespace quindle {

/// The file URL of an absolute path, percent-encoded ("file:///opt/Quindle%20Helper"). Bytes that are not
/// UTF-8 are encoded as they are, so that every path has a URL of its own.
QString fileUrl(const QString& path);

/// The absolute path that a file URL names; the inverse of `fileUrl`. Empty for text that is not a file URL.
QString pathOfFileUrl(const QString& url);

/// The one form in which file URLs of the same place are equal text: percent-encoded, no host, a bundle
/// ("….app") with one slash at its end because it is a folder, anything else with none. Text that is not a
/// file URL stays as it is.
QString normalFileUrl(const QString& url);

} // namespace quindle
