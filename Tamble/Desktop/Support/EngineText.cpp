#include <Tamble/Desktop/Support/Texts.h>

#include <TambleCore/Support/Wording.h>

#include <QCoreApplication>
#include <array>

namespace tamble::texts {
namespace {

/// Sentences that the engine fills in.
constexpr std::array patterns{
    QT_TRANSLATE_NOOP("Engine", "“%1” is no longer there."),
    QT_TRANSLATE_NOOP("Engine", "“%1” changed while it was being worked on."),
    QT_TRANSLATE_NOOP("Engine", "“%1”: %2"),
    QT_TRANSLATE_NOOP("Engine", "Something unexpected went wrong: %1"),
    QT_TRANSLATE_NOOP("Engine", "Couldn't write down what would be changed: %1"),
    QT_TRANSLATE_NOOP("Engine",
                      "This file couldn't get its old name back; it is at “%1”. Undo tries it again."),
};

QString translated(const QString& text) {
    return QCoreApplication::translate("Engine", text.toUtf8().constData());
}

/// What stands in a pattern's places, if that is what the text is: names as they are, the rest translated.
std::optional<QStringList> filling(const QString& text, const QString& pattern) {
    QString marked = pattern;
    const QStringList pieces =
        marked.replace(QLatin1String("%2"), QLatin1String("%1")).split(QLatin1String("%1"));
    QStringList found;
    if (!text.startsWith(pieces.front())) return std::nullopt;
    qsizetype at = pieces.front().size();
    for (qsizetype i = 1; i < pieces.size(); ++i) {
        const bool isLast = i + 1 == pieces.size();
        const qsizetype end = isLast ? text.size() - pieces[i].size() : text.indexOf(pieces[i], at);
        if (end < at || !QStringView(text).sliced(end).startsWith(pieces[i])) return std::nullopt;
        const QString part = text.sliced(at, end - at);
        found << (pieces[i - 1].endsWith(u'“') ? part : translated(part));
        at = end + pieces[i].size();
    }
    return found;
}

QString filled(QString pattern, const QStringList& parts) {
    return parts.size() == 1 ? pattern.arg(parts[0]) : pattern.arg(parts[0], parts[1]);
}

}  // namespace

QString engine(std::string_view text) {
    if (text.empty()) return {};
    const QString key = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    if (const QString whole = translated(key); whole != key) return whole;
    for (const char* pattern : patterns) {
        const QString english = QString::fromUtf8(pattern);
        if (const auto parts = filling(key, english)) return filled(translated(english), *parts);
    }
    return QString::fromStdString(localized(text));
}

}  // namespace tamble::texts
