#include "application/ApplicationWindow.h"

#include <algorithm>

#include <QEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QIcon>
#include <QKeyEvent>
#include <QListWidget>
#include <QScreen>
#include <QShortcut>
#include <QStackedWidget>

#include "application/Sidebar.h"
#include "common/Translation.h"
#include "platform/UserDefaults.h"
#include "preferences/window/FrameAutosave.h"
#include "settings/SettingsTable.h"
#include "widgets/CloseKey.h"
#include "widgets/ControlColours.h"
#include "widgets/PaletteMix.h"

namespace quindle {

namespace {

constexpr QSize smallest(640, 420);
constexpr QSize usual(920, 610);
constexpr double lineShare = 0.12; // of the text's colour in the line beside the sidebar

QStringList titlesOf(const std::vector<ApplicationPage>& pages)
{
    QStringList titles;
    for (const ApplicationPage& page : pages)
        titles.append(translated("Pages", page.name.toUtf8().constData()));
    return titles;
}

} // namespace

ApplicationWindow::ApplicationWindow(std::vector<ApplicationPage> pages, UserDefaults& defaults,
                                     bool placesWindows)
    : m_pages(std::move(pages))
    , m_made(m_pages.size(), nullptr)
    , m_defaults(defaults)
    , m_sidebar(new Sidebar(titlesOf(m_pages), this))
    , m_line(new QWidget(this))
    , m_stack(new QStackedWidget(this))
    , m_autosave(std::make_unique<FrameAutosave>(*this, defaults, Keys::applicationWindowFrame.name(),
                                                 placesWindows, std::chrono::milliseconds(500),
                                                 FrameAutosave::Sizing::ByUser))
{
    setObjectName(QStringLiteral("applicationWindow"));
    setWindowTitle(QStringLiteral("Quindle"));
    setWindowIcon(QIcon::fromTheme(QStringLiteral("quindle")));
    setMinimumSize(smallest);
    m_line->setFixedWidth(1);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_sidebar);
    layout->addWidget(m_line);
    layout->addWidget(m_stack, 1);
    for (QWidget* part : {static_cast<QWidget*>(m_sidebar), m_line, static_cast<QWidget*>(m_stack)})
        part->setAutoFillBackground(true);
    applyColours();
    addShortcuts();
    connect(m_sidebar, &Sidebar::chosen, this, &ApplicationWindow::showChosen);
    restorePlace();
    showPage(defaults.object(Keys::applicationPage.name()).toString());
}

ApplicationWindow::~ApplicationWindow() = default;

void ApplicationWindow::restorePlace()
{
    if (!m_autosave->restore())
        resize(usual);
    // It may be another screen than last time's, and need not be the first one.
    const QScreen* there = QGuiApplication::screenAt(frameGeometry().center());
    const QSize room = (there ? there : screen())->availableGeometry().size();
    resize(size().boundedTo(room).expandedTo(smallest));
    m_autosave->placeAtRestored();
}

void ApplicationWindow::addShortcuts()
{
    for (int index = 0; index < static_cast<int>(m_pages.size()); ++index) {
        const QKeySequence keys(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + index));
        connect(new QShortcut(keys, this), &QShortcut::activated, this,
                [this, index] { m_sidebar->choose(index); });
    }
    connect(new QShortcut(Qt::CTRL | Qt::Key_Q, this), &QShortcut::activated, this, &QWidget::close);
}

void ApplicationWindow::showPage(const QString& name)
{
    const auto found = std::find_if(m_pages.begin(), m_pages.end(),
                                    [&](const ApplicationPage& page) { return page.name == name; });
    m_sidebar->choose(found == m_pages.end() ? 0 : static_cast<int>(found - m_pages.begin()));
}

QString ApplicationWindow::shownPage() const
{
    return m_shown < 0 ? QString() : m_pages[static_cast<std::size_t>(m_shown)].name;
}

void ApplicationWindow::showChosen(int index)
{
    if (index < 0 || index == m_shown)
        return;
    const bool isFirst = m_shown < 0;
    m_shown = index;
    const auto place = static_cast<std::size_t>(index);
    // Most pages are never looked at, and some read files.
    if (!m_made[place]) {
        m_made[place] = m_pages[place].make(m_stack);
        m_stack->addWidget(m_made[place]);
        makeBoxesVisible(*m_made[place], palette());
    }
    m_stack->setCurrentWidget(m_made[place]);
    // What is shown first is what was stored.
    if (!isFirst)
        m_defaults.setObject(Keys::applicationPage.name(), m_pages[place].name);
}

void ApplicationWindow::setComputer(const QString& name, const QString& state)
{
    m_sidebar->setComputer(name, state);
}

void ApplicationWindow::present()
{
    if (isMinimized())
        // Not to its usual size: it may have been as large as the screen.
        setWindowState(windowState() & ~Qt::WindowMinimized);
    if (!isVisible())
        // Opened again, the arrow keys choose a page.
        m_sidebar->list().setFocus();
    show();
    raise();
    activateWindow();
}

bool ApplicationWindow::event(QEvent* event)
{
    const bool isTaken = QWidget::event(event);
    // A page has been made, or has another font.
    if (event->type() == QEvent::LayoutRequest)
        followPages();
    return isTaken;
}

/// No button is cut, whatever the language and the font; as far as the screen allows.
void ApplicationWindow::followPages()
{
    const QSize room = screen()->availableGeometry().size();
    setMinimumSize(layout()->minimumSize().boundedTo(room).expandedTo(smallest));
}

void ApplicationWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange)
        applyColours();
    if (event->type() == QEvent::WindowStateChange)
        Q_EMIT seen(isVisible() && !isMinimized());
    QWidget::changeEvent(event);
}

void ApplicationWindow::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    Q_EMIT seen(!isMinimized());
}

void ApplicationWindow::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    Q_EMIT seen(false);
}

void ApplicationWindow::keyPressEvent(QKeyEvent* event)
{
    if (closesWindow(*event))
        close();
    else
        QWidget::keyPressEvent(event);
}

void ApplicationWindow::closeEvent(QCloseEvent* event)
{
    finishEditing(*this);
    QWidget::closeEvent(event);
}

void ApplicationWindow::applyColours()
{
    const QColor side = toolbarColour(palette(), false);
    QPalette sidebar = palette();
    sidebar.setColor(QPalette::Window, side);
    sidebar.setColor(QPalette::Base, side);
    m_sidebar->setPalette(sidebar);
    QPalette line = palette();
    line.setColor(QPalette::Window,
                  mixed(palette().color(QPalette::WindowText), side, lineShareFor(palette(), lineShare)));
    m_line->setPalette(line);
    QPalette content;
    content.setColor(QPalette::PlaceholderText, hintColour(palette()));
    m_stack->setPalette(content);
    m_stack->setBackgroundRole(contentRole(palette()));
    makeBoxesVisible(*m_stack, palette());
}

} // namespace quindle

#include "moc_ApplicationWindow.cpp"
