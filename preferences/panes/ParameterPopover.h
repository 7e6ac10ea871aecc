#pragma once

#include <QFrame>

class QLineEdit;
class QTreeWidget;

namespace quindle {

class StatusBarTitle;

/// The placeholders of the title template in a popup: what each stands for and what it gives at the moment.
/// Choosing one (click, Enter or Space) inserts it at the cursor of `target` and leaves the popup open for
/// the next one. All that is passed in must outlive it.
class ParameterPopover : public QFrame
{
    Q_OBJECT

public:
    ParameterPopover(const StatusBarTitle& title, QLineEdit& target, QWidget* parent);

    /// Opens it beside the sender's trailing edge, or beside the leading one where there is no room.
    void showRelativeTo(const QWidget& sender);

    /// Shows the present values; en dashes for what is not known. Does nothing while it is closed.
    void refresh();

Q_SIGNALS:
    /// The user has inserted a placeholder; the target holds it already.
    void inserted();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fillRows();
    void fitToRows();
    void insertCurrent();

    const StatusBarTitle& m_title;
    QLineEdit& m_target;
    QTreeWidget& m_rows;
};

} // namespace quindle
