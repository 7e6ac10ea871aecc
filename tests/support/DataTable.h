#pragma once

#include <stdexcept>
#include <vector>

#include <QFile>
#include <QStringList>

#include "tests/support/TestData.h"

namespace quindle {

/// The rows of a table in tests/data: fields separated by tabs, after one line of headings. A table that is
/// missing or has no rows fails the test that reads it.
inline std::vector<QStringList> dataTable(const QString& name)
{
    QFile file(testDataFolder() + u'/' + name);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("no table " + name.toStdString());
    file.readLine();
    std::vector<QStringList> rows;
    while (!file.atEnd())
        rows.push_back(QString::fromUtf8(file.readLine()).trimmed().split(u'\t'));
    if (rows.empty())
        throw std::runtime_error("no rows in " + name.toStdString());
    return rows;
}

} // namespace quindle
