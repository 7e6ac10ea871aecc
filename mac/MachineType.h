#pragma once

#include <span>

#include <QString>
#include <QStringView>

namespace quindle {

/// The machine type of a model identifier, e.g. "MacBook Air"; empty for an unknown one.
QString machineType(const QString& model);

/// A row of a table that names a longer text by a part of it.
struct FragmentName
{
    QStringView fragment;
    QStringView name;
};

/// The name of the first row whose fragment occurs anywhere in the text; `fallback` when none does.
QString nameByFragment(std::span<const FragmentName> rows, const QString& text, const QString& fallback);

} // namespace quindle
