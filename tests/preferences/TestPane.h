#pragma once

#include <memory>

#include <QIcon>
#include <QLineEdit>
#include <QWidget>

#include "preferences/window/WindowControllers.h"

namespace quindle::test {

/// A view that wants a given size.
class SizedView : public QWidget
{
public:
    explicit SizedView(const QSize& size)
        : m_size(size)
    {
    }

    QSize sizeHint() const override { return m_size; }

    void want(const QSize& size)
    {
        m_size = size;
        updateGeometry();
    }

private:
    QSize m_size;
};

/// A pane with one text field, which counts what is asked of it. Its identifier is its title in lower case.
class TestPane : public QDPreferencesWindowControllerProtocol
{
public:
    explicit TestPane(QString title, const QSize& size = QSize(300, 200))
        : m_title(std::move(title))
        , m_view(std::make_unique<SizedView>(size))
    {
        field = new QLineEdit(m_view.get());
        m_view->setObjectName(m_title);
    }

    std::optional<QString> toolTip;
    QIcon icon;
    QLineEdit* field;
    bool hasFirstResponder = false;
    int appeared = 0;
    bool wasVisibleWhenAppearing = false;

    SizedView& sizedView() { return *m_view; }

    QString preferencesIdentifier() const override { return m_title.toLower(); }
    QString preferencesTitle() const override { return m_title; }
    QIcon preferencesIcon() const override { return icon; }
    std::optional<QString> preferencesToolTip() const override { return toolTip; }
    QWidget& view() override { return *m_view; }
    QWidget* initialFirstResponder() override { return hasFirstResponder ? field : nullptr; }

    void viewWillAppear() override
    {
        ++appeared;
        wasVisibleWhenAppearing = m_view->isVisible();
    }

private:
    QString m_title;
    std::unique_ptr<SizedView> m_view;
};

} // namespace quindle::test
