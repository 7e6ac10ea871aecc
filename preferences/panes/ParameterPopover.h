#pragma once

#include <QFrame>
#include <QRect>

class QLineEdit;
class QTreeWidget;

namespace quindle {

class StatusBarTitle;

/// The placeholders of the title template in a popup: what each stands for and what it gives at the moment.
/// Choosing one (click, Enter or Space) inserts it at the cursor of `target`, where writing goes on: the
/// popup closes, and the target has the keyboard. It belongs to the target; the title must outlive both.
class ParameterPopover : public QFrame
{
    Q_OBJECT

public:
    ParameterPopover(const StatusBarTitle& title, QLineEdit& target);

    /// Opens it beside the sender's trailing edge, or beside the leading one where there is no room; never
    /// over the target.
    void showRelativeTo(const QWidget& sender);

    /// Shows the present values; en dashes for what is not known. Does nothing while it is closed.
    void refresh();

Q_SIGNALS:
    /// The user has inserted a placeholder, which is already in the target.
    void inserted();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fillRows();
    void fitToRows();
    void fitToContent();
    void place();
    void insertCurrent();

    const StatusBarTitle& m_title;
    QLineEdit& m_target;
    QTreeWidget& m_rows;
    QRect m_anchor;    ///< the sender's on the screen
    QRect m_available; ///< of the sender's screen
};

} // namespace quindle
