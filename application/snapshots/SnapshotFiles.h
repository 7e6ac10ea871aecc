#pragma once

#include <functional>

#include <QString>
#include <QVariant>

class QWidget;

/// The files that the page of snapshots reads and writes beside the archive, and how they are chosen.
namespace quindle {

/// Asks for another archive; `chosen` is called with its path.
void askForArchive(QWidget* parent, const std::function<void(const QString& path)>& chosen);

/// Asks where to export to, and whether with serial numbers.
void askForExportFile(QWidget* parent,
                      const std::function<void(const QString& path, bool withSerialNumbers)>& chosen);

/// Writes the records, as JSON if the name ends in ".json", else as CSV. The path and why it could not be
/// written; empty on success.
QString exportToFile(const QString& path, const QVariantList& records, bool withSerialNumbers);

} // namespace quindle
