#include <Tamble/Desktop/Translations/EngineTexts/EngineTexts.h>

#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QXmlStreamReader>
#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>

namespace tamble::tests {
namespace {

struct Message {
    QString source;
    /// One for each number form.
    QStringList translations;
    bool isCounted = false;
};

std::vector<Message> messagesOf(const QString& table) {
    QFile file(QStringLiteral(TAMBLE_SOURCE "/Tamble/Desktop/Translations/") + table);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QXmlStreamReader xml(&file);
    std::vector<Message> messages;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) continue;
        if (xml.name() == QLatin1String("message")) {
            messages.push_back({.isCounted = xml.attributes().hasAttribute(QLatin1String("numerus"))});
        } else if (xml.name() == QLatin1String("source")) {
            messages.back().source = xml.readElementText();
        } else if (xml.name() == QLatin1String("numerusform") ||
                   (xml.name() == QLatin1String("translation") && !messages.back().isCounted)) {
            messages.back().translations << xml.readElementText();
        }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return messages;
}

/// "%1", "%n" …; "%Ln" is "%n" written as the locale does.
QSet<QString> placesIn(QString text) {
    static const QRegularExpression place(QStringLiteral("%[1-9n]"));
    text.replace(QLatin1String("%Ln"), QLatin1String("%n"));
    QSet<QString> places;
    for (auto found = place.globalMatch(text); found.hasNext();) places << found.next().captured();
    return places;
}

/// A text without the line breaks that string literals are written with.
std::string joinedLiterals(const std::filesystem::path& file) {
    std::ifstream stream(file);
    const std::string text(std::istreambuf_iterator<char>(stream), {});
    return QString::fromStdString(text)
        .replace(QRegularExpression(QStringLiteral("\"\\s*\n\\s*\"")), QString())
        .toStdString();
}

TEST(Tables, TranslationsFillInWhatTheirSourcesFillIn) {
    for (const auto& table : {QStringLiteral("tamble_en.ts"), QStringLiteral("tamble_de.ts")}) {
        const auto messages = messagesOf(table);
        ASSERT_GT(messages.size(), 500U);
        for (const Message& message : messages) {
            EXPECT_EQ(message.translations.size(), message.isCounted ? 2 : 1) << message.source.toStdString();
            for (const QString& translation : message.translations) {
                EXPECT_EQ(placesIn(translation), placesIn(message.source)) << translation.toStdString();
                EXPECT_FALSE(message.isCounted && translation.contains(QLatin1String("%n")))
                    << "thousands are not parted: " << translation.toStdString();
            }
        }
    }
}

TEST(Tables, SentencesThatAreListedByHandStandInTheEngine) {
    std::string sources;
    const std::filesystem::path engine(TAMBLE_SOURCE "/Packages/TambleCore/Sources/TambleCore");
    for (const auto& entry : std::filesystem::recursive_directory_iterator(engine)) {
        if (entry.is_regular_file()) sources += joinedLiterals(entry.path());
    }
    EXPECT_FALSE(sentencesListedByHand().empty());
    for (const std::string_view sentence : sentencesListedByHand())
        EXPECT_NE(sources.find('"' + std::string(sentence) + '"'), std::string::npos) << sentence;
}

}  // namespace
}  // namespace tamble::tests
