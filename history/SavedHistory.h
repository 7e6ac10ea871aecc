#pragma once

#include <QString>
#include <QVariant>

namespace quindle {

/// The file of the saved history inside the user's Application Support directory.
QString savedHistoryFile(const QString& applicationSupportDirectory);

/// The records that the main application saved in a file, as they stand there. Empty when there is no file;
/// empty, and logged in one line, when it is damaged or no array of records.
QVariantList savedRecords(const QString& path);

} // namespace quindle
