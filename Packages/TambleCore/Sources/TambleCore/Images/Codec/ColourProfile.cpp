#include <TambleCore/Images/Codec/ColourProfile.h>

#include <cstdlib>

#include <lcms2.h>

namespace tamble {
namespace {

struct Close {
    void operator()(void* profile) const { cmsCloseProfile(profile); }
};
struct Delete {
    void operator()(void* transform) const { cmsDeleteTransform(transform); }
};
using Profile = std::unique_ptr<void, Close>;
using Transform = std::unique_ptr<void, Delete>;

Profile opened(ByteView bytes) {
    return Profile(cmsOpenProfileFromMem(bytes.data(), static_cast<cmsUInt32Number>(bytes.size())));
}

/// A grid of colours through the whole cube.
std::vector<std::uint8_t> testColours() {
    std::vector<std::uint8_t> colours;
    for (int red = 0; red <= 255; red += 51) {
        for (int green = 0; green <= 255; green += 51) {
            for (int blue = 0; blue <= 255; blue += 51) {
                for (const int value : {red, green, blue})
                    colours.push_back(static_cast<std::uint8_t>(value));
            }
        }
    }
    return colours;
}

}  // namespace

bool isSRGB(ByteView bytes) {
    constexpr int rounding = 2;
    const Profile profile = opened(bytes);
    if (!profile || cmsGetColorSpace(profile.get()) != cmsSigRgbData) return false;
    const Profile standard(cmsCreate_sRGBProfile());
    const Transform transform(cmsCreateTransform(profile.get(), TYPE_RGB_8, standard.get(), TYPE_RGB_8,
                                                 INTENT_RELATIVE_COLORIMETRIC, cmsFLAGS_NOCACHE));
    if (!transform) return false;
    const auto before = testColours();
    std::vector<std::uint8_t> after(before.size());
    cmsDoTransform(transform.get(), before.data(), after.data(),
                   static_cast<cmsUInt32Number>(before.size() / 3));
    return std::ranges::equal(before, after, [](int a, int b) { return std::abs(a - b) <= rounding; });
}

int channels(ByteView bytes) {
    const Profile profile = opened(bytes);
    return profile ? static_cast<int>(cmsChannelsOf(cmsGetColorSpace(profile.get()))) : 0;
}

}  // namespace tamble
