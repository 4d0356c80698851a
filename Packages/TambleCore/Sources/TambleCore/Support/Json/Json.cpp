#include <TambleCore/Support/Json/Json.h>

#include <vector>

namespace tamble {
namespace {

/// Builds the document from what the library reads. Its own builder looks through an object's members for
/// each new one, which takes hours for an object of a million.
class Builder : public nlohmann::json_sax<Json> {
  public:
    Json document;
    std::string problem;

    bool null() override { return add(nullptr); }
    bool boolean(bool value) override { return add(value); }
    bool number_integer(number_integer_t value) override { return add(value); }
    bool number_unsigned(number_unsigned_t value) override { return add(value); }
    bool number_float(number_float_t value, const string_t&) override { return add(value); }
    bool string(string_t& value) override { return add(std::move(value)); }
    bool binary(binary_t& value) override { return add(std::move(value)); }
    bool start_object(std::size_t) override { return open(Json::object()); }
    bool start_array(std::size_t) override { return open(Json::array()); }
    bool end_object() override { return close(); }
    bool end_array() override { return close(); }
    bool key(string_t& value) override {
        members().emplace_back(std::move(value), nullptr);
        return true;
    }
    bool parse_error(std::size_t, const std::string&, const nlohmann::detail::exception& error) override {
        problem = std::string("This is not valid JSON: ") + error.what();
        return false;
    }

  private:
    using Members = std::vector<Json::object_t::value_type>;
    // Appended to as the list that it is.
    Members& members() { return open_.back()->get_ref<Json::object_t&>(); }

    Json& place() {
        if (open_.empty()) return document;
        if (open_.back()->is_object()) return members().back().second;
        return open_.back()->get_ref<Json::array_t&>().emplace_back();
    }
    bool add(Json value) {
        place() = std::move(value);
        return true;
    }
    bool open(Json value) {
        if (open_.size() == maximumJsonDepth) {
            problem = "The document is nested too deeply.";
            return false;
        }
        Json& opened = place();
        opened = std::move(value);
        open_.push_back(&opened);
        return true;
    }
    bool close() {
        open_.pop_back();
        return true;
    }

    /// The arrays and objects around the next value; only the innermost grows.
    std::vector<Json*> open_;
};

}  // namespace

Json parseJson(std::string_view text) {
    Builder builder;
    if (!Json::sax_parse(text, &builder)) throw DecodeError(builder.problem);
    return std::move(builder.document);
}

std::string writeJson(const Json& document) {
    return document.dump(-1, ' ', false, Json::error_handler_t::replace);
}

std::string writeIndentedJson(const Json& document) {
    return document.dump(2, ' ', false, Json::error_handler_t::replace);
}

}  // namespace tamble
