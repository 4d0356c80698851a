#include <TambleCore/Images/Metadata/Containers/ByteAccess.h>
#include <TambleCore/Images/Metadata/Text/XmpLibrary.h>

#include <mutex>

#include <exiv2/error.hpp>

namespace tamble::xmp {
namespace {

/// The toolkit below has one registry of namespaces, and its lock function must be there before anything
/// else.
void initialize() {
    static std::recursive_mutex mutex;
    static std::once_flag once;
    std::call_once(once, [] {
        Exiv2::LogMsg::setLevel(Exiv2::LogMsg::mute);
        Exiv2::XmpParser::initialize(
            [](void* data, bool lock) {
                auto* const held = static_cast<std::recursive_mutex*>(data);
                if (lock) {
                    held->lock();
                } else {
                    held->unlock();
                }
            },
            &mutex);
    });
}

}  // namespace

std::optional<Exiv2::XmpData> decoded(ByteView packet) {
    initialize();
    Exiv2::XmpData properties;
    try {
        if (Exiv2::XmpParser::decode(properties, std::string(asText(packet))) != 0) return std::nullopt;
    } catch (const std::exception&) {
        return std::nullopt;
    }
    return properties;
}

std::optional<Bytes> encoded(const Exiv2::XmpData& properties) {
    initialize();
    std::string packet;
    constexpr std::uint32_t padding = 1;
    try {
        const auto format = Exiv2::XmpParser::useCompactFormat;
        if (Exiv2::XmpParser::encode(packet, properties, format, padding) != 0) return std::nullopt;
    } catch (const std::exception&) {
        return std::nullopt;
    }
    return copied(asBytes(packet));
}

bool removeIf(Exiv2::XmpData& properties, const std::function<bool(const Exiv2::Xmpdatum&)>& condition) {
    bool removed = false;
    for (auto at = properties.begin(); at != properties.end();) {
        if (condition(*at)) {
            at = properties.erase(at);
            removed = true;
        } else {
            ++at;
        }
    }
    return removed;
}

}  // namespace tamble::xmp
