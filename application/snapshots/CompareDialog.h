#pragma once

#include <QDialog>
#include <QVariantMap>

namespace quindle {

/// Two snapshots beside each other, the older one first, with what has changed.
class CompareDialog : public QDialog
{
    Q_OBJECT

public:
    CompareDialog(const QVariantMap& one, const QVariantMap& other, QWidget* parent);
};

} // namespace quindle
