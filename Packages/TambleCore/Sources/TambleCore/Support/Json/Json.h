#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

#include <nlohmann/json.hpp>

namespace tamble {

/// Objects keep the order in which their members were set, so that documents read as their records do.
using Json = nlohmann::ordered_json;

/// A document that is not JSON, or JSON that is not the value asked for; what() is a sentence for people.
class DecodeError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Deeper documents are refused while parsing: the library destroys and writes values recursively.
inline constexpr int maximumJsonDepth = 256;

/// Throws DecodeError when the text is not one JSON document or is nested deeper than maximumJsonDepth.
Json parseJson(std::string_view text);

/// The document on one line, or indented by two spaces. Strings that are not UTF-8 get replacement
/// characters.
std::string writeJson(const Json& document);
std::string writeIndentedJson(const Json& document);

}  // namespace tamble
