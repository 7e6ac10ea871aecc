#pragma once

#include <QWidget>

namespace quindle {

class PlainLabel;
class SwitchField;

/// One line of the battery view: a quiet caption at its near edge and a value at its far edge. The value is
/// cut last.
class FactRow : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString caption READ caption WRITE setCaption)
    Q_PROPERTY(QString text READ text WRITE setText USER true)
    Q_PROPERTY(bool quietCaption READ hasQuietCaption WRITE setQuietCaption)
    Q_PROPERTY(bool quietText READ hasQuietText WRITE setQuietText)
    Q_PROPERTY(bool switchesUnit READ switchesUnit WRITE setSwitchesUnit)

public:
    explicit FactRow(QWidget* parent = nullptr);

    QString caption() const;
    void setCaption(const QString& caption);

    QString text() const;
    void setText(const QString& text);

    bool hasQuietCaption() const;
    void setQuietCaption(bool quiet);

    bool hasQuietText() const;
    void setQuietText(bool quiet);

    /// True when a click on the value asks for another unit.
    bool switchesUnit() const { return m_switchField != nullptr; }
    void setSwitchesUnit(bool switches);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// Another unit is asked for.
    void clicked();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QWidget* valueWidget() const;
    void arrange();
    void tellAssistants();

    PlainLabel* m_caption;
    PlainLabel* m_value;
    SwitchField* m_switchField = nullptr;
};

} // namespace quindle
