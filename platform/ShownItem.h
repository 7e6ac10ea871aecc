#pragma once

#include <QByteArray>
#include <QString>

namespace quindle {

/// What the panel shows of the status item, for a window that describes it.
struct ShownItem
{
    /// The numbers are sent between processes, so they never change.
    enum class Form : quint8 {
        Nowhere = 0, ///< there is no panel that shows it
        Icon = 1,    ///< the picture alone, without a text
        Number = 2,  ///< the picture is the number `text`
        Text = 3,    ///< `text`, after the picture if there is one
    };

    Form form = Form::Nowhere;
    QString text = {};
    QByteArray picture = {}; ///< a square PNG whose opaque part is to be coloured; empty for none

    friend bool operator==(const ShownItem&, const ShownItem&) = default;
};

} // namespace quindle
