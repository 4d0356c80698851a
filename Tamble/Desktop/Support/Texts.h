#pragma once

#include <TambleCore/Intake/KindCounts.h>
#include <TambleCore/Intake/ScanResult.h>
#include <TambleCore/Jobs/SkipReason.h>
#include <TambleCore/Support/FilePath.h>
#include <TambleCore/Support/ItemNote.h>

#include <QString>
#include <QStringList>
#include <QUrl>
#include <filesystem>
#include <optional>

/// How the window says things: everything in the user's language.
namespace tamble::texts {

/// A text of the engine (a title, a choice, a failure's sentence) in the user's language.
QString engine(std::string_view text);

/// "4.2 MB", as file managers show it.
QString size(std::int64_t bytes);
/// "77 % smaller"; empty when nothing can be said.
QString change(std::int64_t bytesBefore, std::int64_t bytesAfter);
/// "About 20 seconds left".
QString timeLeft(double seconds);
/// "10 minutes ago", "Yesterday", "3 November".
QString timeAgo(std::string_view isoDate);

/// "128 photos", or "12 files" for kinds that are mixed.
QString files(const KindCounts& counts, std::size_t count);
/// "128 photos, 3 PDFs".
QString kinds(const KindCounts& counts, int others);

/// A name or a path as people can read it: bytes that are no text and line breaks are replaced.
QString name(const std::filesystem::path& path);
/// The home folder as "~".
QString place(const std::filesystem::path& path);

/// What an activity entry says it is about: "beach.jpg and 11 others".
QString subject(std::string_view stored);

QString skipped(const SkipReason& reason);
/// What a drop left out.
QStringList notes(const ScanResult& scan);
QString note(ItemNote note);

}  // namespace tamble::texts

namespace tamble {

/// File names are bytes: they go through URLs unharmed, but not through QString.
QUrl urlOf(const std::filesystem::path& path);
/// Empty for what is no file of this machine.
std::optional<std::filesystem::path> pathOf(const QUrl& url);

}  // namespace tamble
