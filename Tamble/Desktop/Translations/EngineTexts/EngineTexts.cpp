#include <Tamble/Desktop/Translations/EngineTexts/EngineTexts.h>

#include <algorithm>

#include <fmt/format.h>

namespace tamble {
namespace {

std::string quoted(std::string_view text) {
    std::string result = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\') result += '\\';
        result += c == '\n' ? std::string("\\n") : std::string(1, c);
    }
    return result + '"';
}

std::string list(std::string_view name, std::string_view macro, const std::vector<std::string>& texts) {
    std::string code = fmt::format("inline constexpr const char* {}[] = {{\n", name);
    for (const auto& text : texts) code += fmt::format("    {}(\"Engine\", {}),\n", macro, quoted(text));
    return code + "};\n";
}

}  // namespace

void EngineTexts::add(std::string_view text) {
    if (text.empty()) return;
    auto& list = text.find("%n") == std::string_view::npos ? plain : counted;
    if (std::ranges::find(list, text) == list.end()) list.emplace_back(text);
}

std::string sourceCode(const EngineTexts& texts) {
    return "// What the window can show of the engine, for those who translate it. Written by the target\n"
           "// update_translations; do not edit.\n"
           "// clang-format off\n"
           "#pragma once\n\n"
           "#include <QtGlobal>\n\n"
           "namespace tamble::engineKeys {\n\n" +
           list("plain", "QT_TRANSLATE_NOOP", texts.plain) + "\n" +
           list("counted", "QT_TRANSLATE_N_NOOP", texts.counted) + "\n}  // namespace tamble::engineKeys\n";
}

}  // namespace tamble
