#include "application/pages/DetailSections.h"

#include <algorithm>

#include <QStringList>

#include "common/SingleLine.h"
#include "common/Translation.h"
#include "common/ValueDescription.h"

namespace quindle {

namespace {

constexpr int deepest = 16; // dictionaries within each other; what lies deeper is one row

void addRows(std::vector<DetailRow>& rows, const QString& prefix, const QVariantMap& values, int depth)
{
    for (auto value = values.begin(); value != values.end(); ++value) {
        const QString name = prefix + value.key();
        if (value->typeId() == QMetaType::QVariantMap && depth < deepest)
            addRows(rows, name + u'.', value->toMap(), depth + 1);
        // Not 1 and 0, which would look like figures.
        else if (value->typeId() == QMetaType::Bool)
            rows.push_back(
                {name, value->toBool() ? translated("Details", "Yes") : translated("Details", "No")});
        else
            rows.push_back({name, singleLine(valueDescription(*value))});
    }
}

void addSection(std::vector<DetailSection>& sections, const QString& title, const QVariantMap& values)
{
    DetailSection section{title, {}};
    addRows(section.rows, {}, values, 0);
    if (!section.rows.empty())
        sections.push_back(std::move(section));
}

bool holdsAll(const DetailRow& row, const QStringList& words)
{
    const QString text = row.name + u' ' + row.value;
    return std::all_of(words.begin(), words.end(),
                       [&](const QString& word) { return text.contains(word, Qt::CaseInsensitive); });
}

} // namespace

std::vector<DetailSection> detailSections(const DetailSources& sources)
{
    std::vector<DetailSection> sections;
    const bool isOne = sources.sourceRows.size() == 1;
    for (qsizetype index = 0; index < sources.sourceRows.size(); ++index) {
        const QString title = isOne ? translated("Details", "Power source")
                                    : translated("Details", "Power source %1").arg(index + 1);
        addSection(sections, title, sources.sourceRows[index].toMap());
    }
    for (auto entry = sources.registry.begin(); entry != sources.registry.end(); ++entry)
        addSection(sections, translated("Details", "Registry: %1").arg(entry.key()), entry->toMap());
    return sections;
}

std::vector<DetailSection> foundDetails(const std::vector<DetailSection>& sections, const QString& search)
{
    const QStringList words = search.split(u' ', Qt::SkipEmptyParts);
    std::vector<DetailSection> found;
    for (const DetailSection& section : sections) {
        DetailSection part{section.title, {}};
        std::copy_if(section.rows.begin(), section.rows.end(), std::back_inserter(part.rows),
                     [&](const DetailRow& row) { return holdsAll(row, words); });
        if (!part.rows.empty())
            found.push_back(std::move(part));
    }
    return found;
}

QString detailsText(const std::vector<DetailSection>& sections)
{
    QString text;
    for (const DetailSection& section : sections) {
        if (!text.isEmpty())
            text += u'\n';
        text += section.title + u'\n';
        for (const DetailRow& row : section.rows)
            text += row.name + QStringLiteral(": ") + row.value + u'\n';
    }
    return text;
}

} // namespace quindle
