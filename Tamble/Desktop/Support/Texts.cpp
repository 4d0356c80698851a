#include <Tamble/Desktop/Support/Texts.h>

#include <TambleCore/Platform/StandardFolders.h>
#include <TambleCore/Support/FileURL.h>
#include <TambleCore/Support/Text.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QLocale>
#include <QRegularExpression>
#include <cmath>

namespace tamble {
namespace {

QString fromUtf8(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(Texts)
};

}  // namespace

namespace texts {

QString size(std::int64_t bytes) {
    if (bytes < 1000) return Texts::tr("%n byte(s)", nullptr, static_cast<int>(bytes));
    return QLocale().formattedDataSize(bytes, bytes < 1'000'000 ? 0 : 1, QLocale::DataSizeSIFormat);
}

QString change(std::int64_t bytesBefore, std::int64_t bytesAfter) {
    if (bytesBefore <= 0) return {};
    const double percent =
        100.0 * static_cast<double>(bytesAfter - bytesBefore) / static_cast<double>(bytesBefore);
    const int whole = static_cast<int>(std::lround(std::abs(percent)));
    if (whole == 0) return Texts::tr("the same size");
    // "100 % smaller" would say that nothing is left.
    return percent < 0 ? Texts::tr("%1 % smaller").arg(QLocale().toString(std::min(whole, 99)))
                       : Texts::tr("%1 % larger").arg(QLocale().toString(whole));
}

QString timeLeft(double seconds) {
    const int whole = static_cast<int>(std::ceil(seconds));
    if (whole < 5) return Texts::tr("A few seconds left");
    if (whole < 60) return Texts::tr("About %n second(s) left", nullptr, (whole + 4) / 5 * 5);
    if (whole < 3600) return Texts::tr("About %n minute(s) left", nullptr, (whole + 30) / 60);
    return Texts::tr("About %n hour(s) left", nullptr, (whole + 1800) / 3600);
}

QString timeAgo(std::string_view isoDate) {
    const QDateTime then = QDateTime::fromString(fromUtf8(isoDate), Qt::ISODate).toLocalTime();
    const QDateTime now = QDateTime::currentDateTime();
    if (!then.isValid()) return {};
    const qint64 minutes = then.secsTo(now) / 60;
    if (minutes < 1) return Texts::tr("Just now");
    if (minutes < 60) return Texts::tr("%n minute(s) ago", nullptr, static_cast<int>(minutes));
    if (then.date() == now.date())
        return Texts::tr("%n hour(s) ago", nullptr, static_cast<int>(minutes / 60));
    if (then.date().daysTo(now.date()) == 1) return Texts::tr("Yesterday");
    const bool isThisYear = then.date().year() == now.date().year();
    return QLocale().toString(then.date(), isThisYear ? Texts::tr("d MMMM") : Texts::tr("d MMMM yyyy"));
}

QString kinds(const KindCounts& counts, int others) {
    QStringList parts;
    if (counts.images > 0) parts << Texts::tr("%n photo(s)", nullptr, counts.images);
    if (counts.videos > 0) parts << Texts::tr("%n video(s)", nullptr, counts.videos);
    if (counts.audio > 0) parts << Texts::tr("%n sound file(s)", nullptr, counts.audio);
    if (counts.pdfs > 0) parts << Texts::tr("%n PDF(s)", nullptr, counts.pdfs);
    if (counts.documents > 0) parts << Texts::tr("%n document(s)", nullptr, counts.documents);
    if (others > 0)
        parts << (parts.isEmpty() ? Texts::tr("%n file(s)", nullptr, others)
                                  : Texts::tr("%n other file(s)", nullptr, others));
    return parts.join(QStringLiteral(", "));
}

QString files(const KindCounts& counts, std::size_t count) {
    const int number = static_cast<int>(count);
    for (const int kind : {counts.images, counts.videos, counts.audio, counts.pdfs, counts.documents}) {
        if (kind == number && number > 0) return kinds(counts, 0);
    }
    return Texts::tr("%n file(s)", nullptr, number);
}

QString name(const std::filesystem::path& path) {
    QString text = fromUtf8(printable(path.native()));
    for (QChar& character : text) {
        if (character.category() == QChar::Other_Control || character.category() == QChar::Other_Format ||
            character == QChar::LineSeparator || character == QChar::ParagraphSeparator)
            character = QChar::ReplacementCharacter;
    }
    return text;
}

QString place(const std::filesystem::path& path) {
    const auto below = path.lexically_relative(folders::home());
    if (below.empty() || *below.begin() == "..") return name(path);
    return below == "." ? QStringLiteral("~") : QStringLiteral("~/") + name(below);
}

QString skipped(const SkipReason& reason) {
    if (const auto* already = std::get_if<skip::AlreadyInFormat>(&reason))
        return Texts::tr("Already in that format (%1).").arg(fromUtf8(already->value));
    return engine(sentence(reason));
}

QStringList notes(const ScanResult& scan) {
    QStringList notes;
    if (scan.unreadableCount > 0)
        notes << Texts::tr("%n item(s) couldn't be read.", nullptr, scan.unreadableCount);
    for (const auto& note : scanNotes({.skippedPackageCount = scan.skippedPackageCount,
                            .skippedLinkCount = scan.skippedLinkCount,
                            .emptyFolderCount = scan.emptyFolderCount}))
        notes << engine(note);
    return notes;
}

QString subject(std::string_view stored) {
    static const QRegularExpression several(QStringLiteral("^(.+) and ([0-9]+) others?$"));
    const QString text = name(std::filesystem::path(stored));
    const auto match = several.match(text);
    return match.hasMatch()
               ? Texts::tr("%1 and %n other(s)", nullptr, match.captured(2).toInt()).arg(match.captured(1))
               : text;
}

QString note(ItemNote note) {
    switch (note) {
        case ItemNote::originalKeptNoBin:
            return Texts::tr(
                "There is no Bin for this disk, so the original was kept and the new file saved beside it.");
        case ItemNote::existingKeptNoBin:
            return Texts::tr(
                "There is no Bin for this disk, so the existing file was kept and the new file saved with a "
                "number.");
        case ItemNote::sealBroken:
            break;
    }
    return Texts::tr(
        "This PDF is digitally signed. The new file is a changed one, so the seal no longer holds for it.");
}

}  // namespace texts

QUrl urlOf(const std::filesystem::path& path) {
    return QUrl::fromEncoded(QByteArray::fromStdString(fileURL(FilePath(path))));
}

std::optional<std::filesystem::path> pathOf(const QUrl& url) {
    return pathFromFileURL(url.toEncoded().toStdString());
}

}  // namespace tamble
