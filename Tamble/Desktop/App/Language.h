#pragma once

#include <QLocale>
#include <QTranslator>

namespace tamble {

/// The language of the window, as long as it lives.
class Language {
  public:
    explicit Language(const QLocale& locale);

  private:
    QTranslator qt_;
    QTranslator english_;
    QTranslator own_;
};

}  // namespace tamble
