#include <Tamble/Desktop/Support/Texts.h>
#include <Tamble/Desktop/Support/UndoText.h>
#include <Tamble/Desktop/Translations/EngineKeys.h>
#include <Tamble/Tests/Translations/Spoken.h>

#include <TambleCore/Jobs/WatchedInput.h>
#include <TambleCore/PDF/PDFError.h>
#include <TambleCore/Support/Wording.h>

#include <gmock/gmock.h>

namespace tamble::tests {
namespace {

const QLocale british(QLocale::English, QLocale::UnitedKingdom), german(QLocale::German, QLocale::Germany);

TEST_F(Spoken, NumbersAgreeWithTheirNounsAndAreWrittenAsTheLocaleDoes) {
    speak(british);
    EXPECT_EQ(texts::files({.images = 1}, 1), "1 photo");
    EXPECT_EQ(texts::files({.images = 10'000}, 10'000), "10,000 photos");
    EXPECT_EQ(texts::kinds({.images = 2, .pdfs = 1}, 1), "2 photos, 1 PDF, 1 other file");
    EXPECT_EQ(texts::size(1), "1 byte");
    EXPECT_EQ(texts::size(17'900'000), "17.9 MB");
    EXPECT_EQ(texts::undone({.removedOutputs = 1, .restoredItems = 2}, {}),
              "1 new file removed, 2 files put back.");
    speak(german);
    EXPECT_EQ(texts::files({.images = 1}, 1), "1 Foto");
    EXPECT_EQ(texts::files({.images = 10'000}, 10'000), "10.000 Fotos");
    EXPECT_EQ(texts::size(17'900'000), "17,9 MB");
    EXPECT_EQ(texts::timeLeft(59), "Noch etwa 60 Sekunden");
}

TEST_F(Spoken, EveryTextOfTheEngineReadsInEnglishAsTheCommandLineSaysIt) {
    speak(british);
    for (const char* text : engineKeys::plain) EXPECT_EQ(texts::engine(text).toStdString(), localized(text));
}

TEST_F(Spoken, NothingOfTheEngineNamesAnotherSystemOrLeavesItsPluralOpen) {
    for (const QLocale& locale : {british, german}) {
        speak(locale);
        for (const char* text : engineKeys::plain)
            EXPECT_THAT(texts::engine(text).toStdString(),
                        testing::Not(testing::ContainsRegex("Mac([^a-z]|$)")));
        for (const char* text : engineKeys::counted) {
            const QString one = QCoreApplication::translate("Engine", text, nullptr, 1),
                          many = QCoreApplication::translate("Engine", text, nullptr, 1200);
            EXPECT_NE(one, QString(many).replace(locale.toString(1200), QStringLiteral("1"))) << text;
            EXPECT_FALSE(one.contains(QLatin1String("(s)")) || many.contains(QLatin1Char('%'))) << text;
            EXPECT_TRUE(many.contains(locale.toString(1200))) << text;
        }
    }
}

TEST_F(Spoken, SentencesThatTheEngineFillsInAreTranslatedAroundWhatItFilledIn) {
    speak(german);
    const InputFailure gone(InputFailure::Kind::missing, "“a %1.pdf”"),
        changed(InputFailure::Kind::changed, "“b”");
    EXPECT_EQ(texts::engine(gone.sentence()), "„a %1.pdf“ ist nicht mehr da.");
    EXPECT_EQ(texts::engine(changed.sentence()), "„b“ hat sich während der Arbeit daran verändert.");
    const PDFError wrong(PDFError::Case::wrongPassword);
    EXPECT_EQ(texts::engine("“Convert.pdf”: " + wrong.sentence()),
              "„Convert.pdf“: " + texts::engine(wrong.sentence()));
    // A name stays as it is, whatever it says.
    EXPECT_EQ(texts::engine("“Convert”: " + wrong.sentence()),
              "„Convert“: " + texts::engine(wrong.sentence()));
    EXPECT_EQ(texts::engine("Something unexpected went wrong: no cause was given."),
              "Etwas Unerwartetes ist schiefgegangen: Eine Ursache wurde nicht genannt.");
    EXPECT_EQ(texts::engine("Kein Satz von hier: %1"), "Kein Satz von hier: %1");
}

TEST_F(Spoken, NotesAndSubjectsWithANumberInThemAreCounted) {
    speak(british);
    EXPECT_EQ(texts::notes({.unreadableCount = 1}), QStringList("1 item couldn't be read."));
    EXPECT_EQ(texts::notes({.skippedLinkCount = 1, .unreadableCount = 2}).front(),
              "2 items couldn't be read.");
    EXPECT_EQ(texts::subject("beach.jpg and 1 other"), "beach.jpg and 1 other");
    speak(german);
    EXPECT_EQ(texts::notes({.unreadableCount = 1}), QStringList("1 Eintrag war nicht lesbar."));
    EXPECT_EQ(texts::subject("sun and 3 moons.jpg and 1200 others"), "sun and 3 moons.jpg und 1.200 weitere");
    EXPECT_EQ(texts::subject("salt and pepper"), "salt and pepper");
}

}  // namespace
}  // namespace tamble::tests
