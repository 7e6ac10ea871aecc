#pragma once

#include <vector>

#include <QString>

class QObject;

/// What the models know, as plain text for menus and tool tips that the desktop draws. `mac` is the
/// computer's model, or null; values are read by key.
namespace quindle {

/// False also for no computer at all.
bool hasBattery(const QObject* mac);

/// State and power, then remaining time on a line of its own; "No battery" without one.
QString toolTipText(const QObject* mac);

/// What the models know, row by row. Values are read at every update, texts are made only of those that are
/// different: most of them stay as they are from one refresh to the next.
class BatteryFacts
{
public:
    BatteryFacts();
    ~BatteryFacts();

    /// One row for each fact, always as many and in the same order: caption and value with a tab between, or
    /// a caption alone; empty where there is nothing to tell.
    const std::vector<QString>& texts() const { return m_texts; }

    void update(const QObject* mac);

private:
    struct Fact;

    std::vector<Fact> m_facts;
    std::vector<QString> m_texts;
};

/// One line of at most `length` characters: line breaks, tabs and control characters become blanks, and what
/// is too long ends with an ellipsis.
QString singleLine(const QString& text, qsizetype length);

} // namespace quindle
