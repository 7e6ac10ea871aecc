#pragma once

#include <QImage>
#include <QWidget>

#include "platform/RunLoop.h"

class QPainter;

namespace quindle {

class BoundLineEdit;
class PlainLabel;
class QuietLabel;
class StatusBarTitle;
struct ShownItem;

/// The title that a template gives at the moment: the text in a field, or one that is bound. The caption
/// marks a text that is not stored. While it is seen it watches the values.
class TitlePreview : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString titleTemplate READ titleTemplate WRITE setTitleTemplate)

public:
    explicit TitlePreview(QWidget* parent = nullptr);

    /// Shows what the field's text gives from now on, at every change of it. Both must outlive the preview.
    void follow(const BoundLineEdit& field, const StatusBarTitle& title);

    /// Shows from now on what the panel shows of the item; where that is not known, what `titleTemplate`
    /// gives.
    void follow(const StatusBarTitle& title);

    const QString& titleTemplate() const { return m_titleTemplate; }
    void setTitleTemplate(const QString& titleTemplate);

    /// Shows the present values. Where there is nothing to show (no battery, an empty text) it says so in
    /// words.
    void refresh();

protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void showPending(bool isPending);
    void showTitle(const QString& title, const QString& instead);
    void showItem(const ShownItem& item);
    QRect pictureRect() const;
    void paintPicture(QPainter& painter) const;
    void fitToFont();
    void watch(bool isSeen);

    QString m_titleTemplate;
    bool m_isPending = false;
    bool m_followsField = false;
    const StatusBarTitle* m_title = nullptr;
    Punctuality m_watched;
    QuietLabel& m_caption;
    PlainLabel& m_shown;
    QImage m_picture; ///< of what the panel shows; null for none
};

} // namespace quindle
