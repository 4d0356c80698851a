// Shows the window with sample files in a home of its own, or takes a picture of it: tamble-gallery --help
#include <Tamble/Desktop/App/Language.h>
#include <Tamble/Desktop/Gallery/PrivateHome.h>
#include <Tamble/Desktop/Gallery/Screens.h>
#include <Tamble/Model/PreferencesStore.h>

#include <QGuiApplication>
#include <QQuickWindow>
#include <QTest>
#include <cstdlib>
#include <iostream>
#include <span>

#include <CLI/CLI.hpp>

namespace tamble::gallery {
namespace {

struct Options {
    std::string screen = "home";
    std::string size = "1280x800";
    std::string language = "en";
    std::string shot;
    std::string scale = "1";
    bool isDark = false;
    bool hasFewShades = false;
};

WindowSize sizeOf(const std::string& text) {
    const auto cross = text.find('x');
    return {.width = std::stoi(text), .height = std::stoi(text.substr(cross + 1))};
}

void setPreferences(const Options& options) {
    PreferencesStore preferences;
    preferences.setAppearance(options.isDark ? Appearance::dark : Appearance::light);
    preferences.setWindowSize(sizeOf(options.size));
}

/// A PNG takes a third less without the lowest bits, which nobody sees.
QImage withFewShades(const QImage& image) {
    constexpr int step = 4;
    QImage result = image.convertToFormat(QImage::Format_RGB888);
    for (int row = 0; row < result.height(); ++row) {
        const std::span line(result.scanLine(row), static_cast<std::size_t>(3 * result.width()));
        for (uchar& value : line) value = static_cast<uchar>(std::min(255, (value + step / 2) / step * step));
    }
    return result;
}

bool takePicture(Stage& stage, const Options& options) {
    stage.settle();
    const QImage picture = stage.window().grabWindow();
    return (options.hasFewShades ? withFewShades(picture) : picture)
        .save(QString::fromStdString(options.shot));
}

int show(const Options& options, const Screen& screen, const PrivateHome& home,
         QGuiApplication& application) {
    setPreferences(options);
    if (screen.prepare != nullptr) screen.prepare();
    const QLocale locale(QString::fromStdString(options.language));
    QLocale::setDefault(locale);
    const Language language(locale);
    AppWindow window;
    if (window.window() == nullptr) return 1;
    window.app().begin();
    Stage stage(window, SampleFiles(home.folder()));
    if (!QTest::qWaitForWindowExposed(&stage.window())) std::cerr << "The window isn't shown.\n";
    stage.window().requestActivate();
    stage.until([&] { return window.app().activity()->isLoaded(); });
    if (screen.go != nullptr) screen.go(stage);
    if (options.shot.empty()) return application.exec();
    if (takePicture(stage, options)) return 0;
    std::cerr << "Couldn't write " << options.shot << ".\n";
    return 1;
}

int run(int argumentCount, char** arguments) {
    Options options;
    std::vector<std::string> names;
    for (const Screen& screen : screens()) names.emplace_back(screen.name);
    CLI::App parser("Shows the window with sample files in a home of its own.");
    parser.add_option("--screen", options.screen, "What to show")->check(CLI::IsMember(names));
    parser.add_option("--size", options.size, "Of the window")->check([](const std::string& text) {
        const auto cross = text.find('x');
        const bool isSize = cross != std::string::npos && std::atoi(text.c_str()) > 0 &&
                            std::atoi(text.c_str() + cross + 1) > 0;
        return isSize ? std::string() : "as in 1280x800";
    });
    parser.add_option("--scale", options.scale, "Pixels for each of the size");
    parser.add_flag("--dark", options.isDark, "With the dark colours");
    parser.add_option("--language", options.language, "As in de");
    parser.add_option("--shot", options.shot, "Saves a picture in this file and ends");
    parser.add_flag("--few-shades", options.hasFewShades, "Makes the picture's file smaller");
    CLI11_PARSE(parser, argumentCount, arguments);

    const PrivateHome home;
    ::setenv("QT_SCALE_FACTOR", options.scale.c_str(), 1);
    QGuiApplication application(argumentCount, arguments);
    QGuiApplication::setApplicationName(QStringLiteral("Tamble"));
    const auto screen = std::ranges::find(screens(), options.screen, &Screen::name);
    return show(options, *screen, home, application);
}

}  // namespace
}  // namespace tamble::gallery

int main(int argumentCount, char** arguments) {
    try {
        return tamble::gallery::run(argumentCount, arguments);
    } catch (const std::exception& error) {
        std::cerr << "tamble-gallery: " << error.what() << "\n";
        return 1;
    }
}
