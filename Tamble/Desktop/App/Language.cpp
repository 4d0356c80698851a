#include <Tamble/Desktop/App/Language.h>

#include <QGuiApplication>
#include <QLibraryInfo>

namespace tamble {

Language::Language(const QLocale& locale) {
    // What Qt says by itself, in its file dialogs.
    if (qt_.load(locale, QStringLiteral("qt"), QStringLiteral("_"),
                 QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&qt_);
    // English as well: its plurals.
    if (english_.load(QStringLiteral(":/i18n/tamble_en.qm"))) QCoreApplication::installTranslator(&english_);
    if (own_.load(locale, QStringLiteral("tamble"), QStringLiteral("_"), QStringLiteral(":/i18n")))
        QCoreApplication::installTranslator(&own_);
    QGuiApplication::setLayoutDirection(locale.textDirection());
}

}  // namespace tamble
