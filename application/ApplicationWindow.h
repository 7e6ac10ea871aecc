#pragma once

#include <functional>
#include <memory>
#include <vector>

#include <QString>
#include <QWidget>

class QStackedWidget;

namespace quindle {

class FrameAutosave;
class Sidebar;
class UserDefaults;

/// A page of the window: its name, in the settings and, translated in the context "Pages", in the sidebar,
/// and how it is made when it is first shown.
struct ApplicationPage
{
    QString name;
    std::function<QWidget*(QWidget* parent)> make;
};

/// The application's one window: the pages' names at its side, the chosen page beside them. Its place, size
/// and page are those of the last time. Control and a page's number choose it.
class ApplicationWindow : public QWidget
{
    Q_OBJECT

public:
    /// At least one page. `placesWindows`: windows of this desktop have a position. `defaults` must outlive
    /// it.
    ApplicationWindow(std::vector<ApplicationPage> pages, UserDefaults& defaults, bool placesWindows);
    ~ApplicationWindow() override;

    /// Shows the page of that name, or the first one where none has it.
    void showPage(const QString& name);

    /// The name of the page that is shown.
    QString shownPage() const;

    /// At the sidebar's end; an empty text leaves its line out.
    void setComputer(const QString& name, const QString& state);

    /// Shows it in front of the others, as far as the desktop allows that.
    void present();

Q_SIGNALS:
    /// It has become visible, or no longer is (closed, minimized).
    void seen(bool isSeen);

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void addShortcuts();
    void showChosen(int index);
    void applyColours();
    void restorePlace();
    void followPages();

    std::vector<ApplicationPage> m_pages;
    std::vector<QWidget*> m_made; ///< null before a page is first shown
    UserDefaults& m_defaults;
    Sidebar* m_sidebar;
    QWidget* m_line;
    QStackedWidget* m_stack;
    std::unique_ptr<FrameAutosave> m_autosave;
    int m_shown = -1;
};

} // namespace quindle
