#include "platform/linux/login/DesktopEntry.h"

namespace quindle {

namespace {

constexpr QByteArrayView byteOrderMark("\xef\xbb\xbf");

/// The lines without their ends.
class Lines
{
public:
    explicit Lines(QByteArrayView bytes)
        : m_rest(bytes.startsWith(byteOrderMark) ? bytes.sliced(byteOrderMark.size()) : bytes)
    {
    }

    std::optional<QByteArrayView> next()
    {
        if (m_rest.isEmpty())
            return std::nullopt;
        const qsizetype end = m_rest.indexOf('\n');
        const QByteArrayView line = end < 0 ? m_rest : m_rest.first(end);
        m_rest = end < 0 ? QByteArrayView() : m_rest.sliced(end + 1);
        return line.trimmed();
    }

private:
    QByteArrayView m_rest;
};

/// Reads the argument list of an Exec value whose escapes are resolved.
class ExecReader
{
public:
    explicit ExecReader(QByteArray line)
        : m_line(std::move(line))
    {
    }

    std::optional<QList<QByteArray>> read()
    {
        for (; m_at < m_line.size(); ++m_at)
            if (!takeCharacter(m_line[m_at]))
                return std::nullopt;
        if (m_isQuoted)
            return std::nullopt;
        endArgument();
        return m_arguments.isEmpty() || m_arguments.first().isEmpty() ? std::nullopt
                                                                      : std::optional(m_arguments);
    }

private:
    bool takeCharacter(char c)
    {
        switch (c) {
        case '\0':
            return false;
        case '"':
            m_isQuoted = !m_isQuoted;
            m_hasArgument = true; // "" is an argument too
            return true;
        case '\\':
            return takeEscaped();
        case '%':
            return takeFieldCode();
        default:
            if ((c == ' ' || c == '\t' || c == '\n') && !m_isQuoted)
                endArgument();
            else
                append(c);
            return true;
        }
    }

    /// Inside quotes four characters can be escaped; outside, escapes are usually read as by a shell.
    bool takeEscaped()
    {
        if (m_at + 1 == m_line.size())
            return false;
        const char escaped = m_line[m_at + 1];
        // No argument can contain it.
        if (escaped == '\0')
            return false;
        if (m_isQuoted && !QByteArrayView("\"`$\\").contains(escaped)) {
            append('\\');
            return true;
        }
        append(escaped);
        ++m_at;
        return true;
    }

    bool takeFieldCode()
    {
        const char code = m_at + 1 < m_line.size() ? m_line[m_at + 1] : '\0';
        // The last six are obsolete, and mean nothing.
        if (!QByteArrayView("%fFuUickdDnNvm").contains(code))
            return false;
        if (code == '%')
            append('%');
        ++m_at;
        return true;
    }

    void append(char c)
    {
        m_argument.append(c);
        m_hasArgument = true;
    }

    void endArgument()
    {
        if (m_hasArgument)
            m_arguments.append(m_argument);
        m_argument.clear();
        m_hasArgument = false;
    }

    QByteArray m_line;
    qsizetype m_at = 0;
    bool m_isQuoted = false;
    bool m_hasArgument = false;
    QByteArray m_argument;
    QList<QByteArray> m_arguments;
};

QByteArray escapedValue(const QByteArray& text)
{
    QByteArray written = text;
    // Backslashes first, or those of the other escapes would be doubled.
    return written.replace('\\', "\\\\").replace('\n', "\\n").replace('\t', "\\t").replace('\r', "\\r");
}

} // namespace

std::optional<DesktopEntry> desktopEntryFromBytes(const QByteArray& bytes)
{
    std::optional<DesktopEntry> entry;
    bool isInGroup = false;
    Lines lines(bytes);
    while (const auto line = lines.next()) {
        if (line->startsWith('[')) {
            // Other groups are actions and vendors' own; their keys may have the same names.
            isInGroup = *line == "[Desktop Entry]";
            if (isInGroup && !entry)
                entry.emplace();
            continue;
        }
        const qsizetype equals = line->indexOf('=');
        if (isInGroup && equals > 0 && !line->startsWith('#'))
            entry->insert(line->first(equals).trimmed().toByteArray(),
                          line->sliced(equals + 1).trimmed().toByteArray());
    }
    return entry;
}

bool isTrue(const DesktopEntry& entry, const QByteArray& key)
{
    const QByteArray value = entry.value(key).toLower();
    return value == "true" || value == "1"; // old files write the number
}

QByteArray unescapedValue(const QByteArray& written)
{
    constexpr QByteArrayView codes("sntr\\");
    constexpr QByteArrayView meanings(" \n\t\r\\");
    QByteArray text;
    text.reserve(written.size());
    for (qsizetype at = 0; at < written.size(); ++at) {
        const bool isEscape = written[at] == '\\' && at + 1 < written.size();
        const qsizetype code = isEscape ? codes.indexOf(written[at + 1]) : -1;
        text.append(code < 0 ? written[at] : meanings[code]);
        at += code < 0 ? 0 : 1;
    }
    return text;
}

std::optional<QList<QByteArray>> execArguments(const QByteArray& written)
{
    return ExecReader(unescapedValue(written)).read();
}

QByteArray execValue(const QByteArray& program)
{
    // Always in quotes, so that blanks are part of it.
    QByteArray quoted = "\"";
    for (const char c : program) {
        if (QByteArrayView("\"`$\\").contains(c))
            quoted.append('\\');
        // A single one would begin a field code.
        quoted.append(c == '%' ? QByteArrayView("%%") : QByteArrayView(&c, 1));
    }
    return escapedValue(quoted + '"');
}

} // namespace quindle
