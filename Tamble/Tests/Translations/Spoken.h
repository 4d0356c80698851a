#pragma once

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>
#include <memory>

#include <gtest/gtest.h>

namespace tamble::tests {

/// The window's texts in a language of one's own choice.
class Spoken : public testing::Test {
  protected:
    void speak(const QLocale& locale) {
        QLocale::setDefault(locale);
        for (const auto& name :
             {QStringLiteral("tamble_en"), QStringLiteral("tamble_") + locale.bcp47Name().left(2)}) {
            auto& table = tables_.emplace_back(std::make_unique<QTranslator>());
            ASSERT_TRUE(table->load(QStringLiteral(":/i18n/") + name));
            QCoreApplication::installTranslator(table.get());
        }
    }

  private:
    int count_ = 1;
    std::string name_ = "test";
    char* arguments_ = name_.data();
    QCoreApplication application_{count_, &arguments_};
    std::vector<std::unique_ptr<QTranslator>> tables_;
};

}  // namespace tamble::tests
