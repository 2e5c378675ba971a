#include "scenario.h"

#include <QRegularExpression>
#include <QStringBuilder>

namespace sim
{

namespace
{

const QString Separator = QStringLiteral(" = ");

// "PATH = VALUE"; an empty value may lose its trailing blank in an editor.
bool splitAssignment(const QString &line, QString *left, QString *right)
{
    const int at = line.indexOf(Separator);
    if (at >= 0) {
        *left = line.left(at).trimmed();
        *right = line.mid(at + Separator.size());
        return true;
    }
    if (line.endsWith(QLatin1String(" ="))) {
        *left = line.left(line.size() - 2).trimmed();
        right->clear();
        return true;
    }
    return false;
}

// The first words of the controller's parameter paths.
bool isKnownGroup(const QStringRef &word)
{
    static const QStringList groups { QStringLiteral("body"), QStringLiteral("cal"),
        QStringLiteral("config"), QStringLiteral("filter6d"), QStringLiteral("fingertracking"),
        QStringLiteral("gripwand"), QStringLiteral("inertial"), QStringLiteral("measurementtool"),
        QStringLiteral("measurementtool_reference"), QStringLiteral("multiusergripwand_head"),
        QStringLiteral("standard"), QStringLiteral("status"), QStringLiteral("targetlib"),
        QStringLiteral("tracking"), QStringLiteral("zemwpan") };
    return groups.contains(word);
}

// A quote opened in a value must close it: the last character is one.
bool hasOpenQuote(const QString &value)
{
    return value.count(QLatin1Char('"')) == 1
        || (value.contains(QLatin1Char('"')) && !value.endsWith(QLatin1Char('"')));
}

} // namespace

bool Scenario::parseVersion(const QString &text, BackendVersions::Version *version)
{
    static const QRegularExpression pattern(QStringLiteral("^(\\d+)\\.(\\d+)\\.(-?\\d+)$"));
    const QRegularExpressionMatch match = pattern.match(text);
    if (!match.hasMatch())
        return false;
    bool ok[3] = {};
    const BackendVersions::Version parsed { match.captured(1).toInt(&ok[0]),
        match.captured(2).toInt(&ok[1]), match.captured(3).toInt(&ok[2]) };
    if (!ok[0] || !ok[1] || !ok[2])
        return false;
    *version = parsed;
    return true;
}

bool Scenario::parse(const QString &text, const QString &name)
{
    m_name = name;
    const QVector<QStringRef> lines = text.splitRef(QLatin1Char('\n'));
    for (int i = 0; i < lines.size(); ++i) {
        QStringRef line = lines.at(i);
        if (line.endsWith(QLatin1Char('\r')))
            line.chop(1);
        // Blank lines and comments are most of a file: no copy for them.
        const QStringRef trimmed = line.trimmed();
        if (!trimmed.isEmpty() && !trimmed.startsWith(QLatin1Char('#')))
            parseLine(line.toString(), i + 1);
    }
    return m_errors.isEmpty();
}

void Scenario::addError(int line, const QString &reason)
{
    // One allocation a report: a broken file may have one on every line.
    m_errors << QString(
        m_name % QLatin1Char(':') % QString::number(line) % QLatin1String(": ") % reason);
}

void Scenario::parseLine(const QString &line, int number)
{
    const QStringRef trimmed = QStringRef(&line).trimmed();
    if (trimmed.startsWith(QLatin1Char('@'))) {
        const QString directive = trimmed.left(trimmed.indexOf(QLatin1Char(' '))).toString();
        // Only the start is trimmed: a doctored reply may end in a blank.
        QString argument = line.mid(line.indexOf(directive) + directive.size());
        while (argument.startsWith(QLatin1Char(' ')) || argument.startsWith(QLatin1Char('\t')))
            argument.remove(0, 1);
        parseDirective(directive, argument, number);
        return;
    }
    QString path;
    QString value;
    if (!splitAssignment(line, &path, &value)) {
        addError(number, QStringLiteral("expected \"PATH = VALUE\""));
        return;
    }
    if (path.isEmpty()) {
        addError(number, QStringLiteral("no parameter path"));
        return;
    }
    if (path.startsWith(QLatin1String("velora2 ")) || path == QLatin1String("velora2")) {
        addError(number, QStringLiteral("meta commands are not parameters"));
        return;
    }
    const QStringRef group = path.leftRef(path.indexOf(QLatin1Char(' ')));
    if (!isKnownGroup(group)) {
        addError(number, QStringLiteral("unknown parameter group \"%1\"").arg(group));
        return;
    }
    if (hasOpenQuote(value)) {
        addError(number, QStringLiteral("unterminated quote in %1").arg(value));
        return;
    }
    if (m_lines.contains(path)) {
        addError(number,
            QStringLiteral("duplicate parameter \"%1\" (first on line %2)")
                .arg(path)
                .arg(m_lines.value(path)));
        return;
    }
    m_parameters.insert(path, value);
    m_lines.insert(path, number);
}

bool Scenario::once(const QString &directive, int line)
{
    if (m_directiveLines.contains(directive)) {
        addError(line,
            QStringLiteral("%1 given twice (first on line %2)")
                .arg(directive)
                .arg(m_directiveLines.value(directive)));
        return false;
    }
    m_directiveLines.insert(directive, line);
    return true;
}

void Scenario::parseDirective(const QString &directive, const QString &rawArgument, int number)
{
    const QString argument = rawArgument.trimmed();
    m_given << directive;
    if (directive == QLatin1String("@backend-version")
        || directive == QLatin1String("@system-version")) {
        BackendVersions::Version version;
        if (!parseVersion(argument, &version)) {
            addError(number, QStringLiteral("bad version \"%1\"").arg(argument));
            return;
        }
        if (!once(directive, number))
            return;
        if (directive == QLatin1String("@backend-version"))
            m_versions.backendVersion = version;
        else
            m_versions.systemVersion = version;
    } else if (directive == QLatin1String("@system-type")) {
        if (argument.isEmpty()) {
            addError(number, QStringLiteral("no system type"));
            return;
        }
        if (once(directive, number))
            m_versions.systemType = argument;
    } else if (directive == QLatin1String("@present")) {
        static const QRegularExpression targetId(QStringLiteral("^t\\d{2,}$"));
        const QStringList ids = argument.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        for (const QString &id : ids) {
            if (!targetId.match(id).hasMatch())
                addError(number, QStringLiteral("bad target id \"%1\"").arg(id));
            else if (!m_present.contains(id))
                m_present << id;
        }
    } else if (directive == QLatin1String("@search-duration")) {
        bool ok = false;
        const int duration = argument.toInt(&ok);
        if (!ok || duration <= 0) {
            addError(number, QStringLiteral("bad search duration \"%1\"").arg(argument));
            return;
        }
        if (once(directive, number))
            m_searchDuration = duration;
    } else if (directive == QLatin1String("@fail")) {
        if (argument.isEmpty()) {
            addError(number, QStringLiteral("no command pattern"));
            return;
        }
        FaultInjector::Injection injection;
        injection.pattern = argument;
        injection.fails = true;
        injection.result = 1;
        injection.fromScenario = true;
        m_faults.add(injection);
    } else if (directive == QLatin1String("@reply")) {
        QString pattern;
        QString reply;
        if (!splitAssignment(rawArgument, &pattern, &reply) || pattern.isEmpty()) {
            addError(number, QStringLiteral("expected \"@reply PATTERN = TEXT\""));
            return;
        }
        FaultInjector::Injection injection;
        injection.pattern = pattern;
        injection.reply = reply.toLatin1();
        injection.fromScenario = true;
        m_faults.add(injection);
    } else if (directive == QLatin1String("@unfail")) {
        if (argument.isEmpty()) {
            addError(number, QStringLiteral("no command pattern (\"*\" lifts every one)"));
            return;
        }
        m_faults.lift(argument);
        m_lifted << argument;
    } else if (directive == QLatin1String("@note")) {
        if (once(directive, number))
            m_note = argument;
    } else {
        addError(number, QStringLiteral("unknown directive %1").arg(directive));
    }
}

} // namespace sim
