#pragma once

#include <vector>

#include "facts/Fact.h"
#include "facts/ShownTexts.h"

namespace quindle {

/// What a fact says about its source. With nothing known everything is empty, and the fact is not shown.
struct FactText
{
    QString value = {};
    QString detail = {};
    QString caption = {}; ///< instead of the table's, where it is not empty
    QString toolTip = {};
    bool isCaptionEnough = false; ///< also shown without a value
    std::optional<double> percent = {};
    bool isQuiet = false;
    FactClick click = FactClick::Nothing; ///< for a fact that can only sometimes be switched
};

/// A fact's caption at each place, marked for translators; null where it is left out.
struct FactCaptions
{
    const char* inView = nullptr;
    const char* inMenu = nullptr; ///< also in the tool tip, for the ranks that are shown there
    const char* inReport = nullptr;
};

constexpr FactCaptions everywhere(const char* caption)
{
    return {caption, caption, caption};
}

constexpr FactCaptions inViewAndReport(const char* caption)
{
    return {caption, nullptr, caption};
}

/// One line in a table of facts. `Source` is what they are made from.
template <class Source>
struct FactRule
{
    FactId id = FactId::Charge;
    FactGroup group = FactGroup::Summary;
    int rank = 0;
    FactCaptions captions;
    FactText (*text)(const Source&) = nullptr;
    FactClick click = FactClick::Nothing;

    const char* caption(FactPlace place) const
    {
        switch (place) {
        case FactPlace::View:
            return captions.inView;
        case FactPlace::Menu:
            return captions.inMenu;
        case FactPlace::ToolTip:
            return rank <= lastRankOfToolTip ? captions.inMenu : nullptr;
        case FactPlace::Report:
            break;
        }
        return captions.inReport;
    }
};

/// The rule of all places: what is not known is not shown. `text` is empty for what is not known.
template <class Source>
Fact factOf(const FactRule<Source>& rule, const QString& caption, const FactText& text)
{
    return {.id = rule.id,
            .group = rule.group,
            .rank = rule.rank,
            .caption = text.caption.isEmpty() ? caption : text.caption,
            .value = text.value,
            .detail = text.detail,
            .shown = !text.value.isEmpty() || text.isCaptionEnough,
            .toolTip = text.toolTip,
            .click = text.click == FactClick::Nothing ? rule.click : text.click,
            .percent = text.percent,
            .isQuiet = text.isQuiet};
}

/// Adds the facts of a table that belong to `place`: always the same ones in the table's order. Without a
/// source none is known.
template <class Table, class Source>
void addFacts(std::vector<Fact>& facts, const Table& table, FactPlace place,
              const std::optional<Source>& source)
{
    for (const auto& rule : table) {
        if (const char* caption = rule.caption(place))
            facts.push_back(
                factOf(rule, factWords(place, caption), source ? rule.text(*source) : FactText()));
    }
}

} // namespace quindle
