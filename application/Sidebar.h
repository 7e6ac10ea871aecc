#pragma once

#include <QWidget>

class QListWidget;
class QVBoxLayout;

namespace quindle {

class PlainLabel;

/// The list of the pages, and below it, in quiet text, which computer this is and what its battery does.
class Sidebar : public QWidget
{
    Q_OBJECT

public:
    /// One entry for each name; none is chosen.
    explicit Sidebar(const QStringList& names, QWidget* parent = nullptr);

    /// Chooses an entry; -1 for none. Emits `chosen` where it is another one.
    void choose(int index);

    /// An empty text leaves its line out.
    void setComputer(const QString& name, const QString& state);

    /// The list, which takes the keyboard.
    QListWidget& list() const { return *m_list; }

Q_SIGNALS:
    void chosen(int index);

protected:
    void changeEvent(QEvent* event) override;

private:
    void fitToFont();
    int widestTitle() const;

    QListWidget* m_list;
    QVBoxLayout* m_layout;
    PlainLabel* m_name;
    PlainLabel* m_state;
};

} // namespace quindle
