#include <TambleCore/Support/Json/Json.h>

namespace tamble {

Json parseJson(std::string_view text) {
    bool tooDeep = false;
    const auto watchDepth = [&tooDeep](int depth, Json::parse_event_t, Json&) {
        if (depth > maximumJsonDepth) tooDeep = true;
        // A discarded value is never stored, so what is too deep is never built.
        return !tooDeep;
    };
    try {
        Json document = Json::parse(text, watchDepth);
        if (tooDeep) throw DecodeError("The document is nested too deeply.");
        return document;
    } catch (const Json::exception& error) {
        throw DecodeError(std::string("This is not valid JSON: ") + error.what());
    }
}

std::string writeJson(const Json& document) {
    return document.dump(-1, ' ', false, Json::error_handler_t::replace);
}

std::string writeIndentedJson(const Json& document) {
    return document.dump(2, ' ', false, Json::error_handler_t::replace);
}

}  // namespace tamble
