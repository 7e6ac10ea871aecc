#pragma once

#include <ostream>

#include <QDateTime>
#include <QString>
#include <QVariant>

// Readable values in failure messages.
QT_BEGIN_NAMESPACE

inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QDateTime& date, std::ostream* out)
{
    *out << date.toString(Qt::ISODateWithMs).toStdString();
}

inline void PrintTo(const QVariant& value, std::ostream* out)
{
    *out << value.typeName() << '(' << value.toString().toStdString() << ')';
}

QT_END_NAMESPACE
