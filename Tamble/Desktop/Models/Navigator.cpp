#include <Tamble/Desktop/Models/Navigator.h>

namespace tamble {

void Navigator::open(Screen screen, const QString& category) {
    const Place wanted{screen, category};
    if (wanted == place_) return;
    // Home is where every way begins.
    if (screen == Home) {
        way_.clear();
    } else {
        way_.push_back(place_);
    }
    show(wanted);
}

void Navigator::replace(Screen screen) {
    show({screen, {}});
}

void Navigator::back() {
    if (way_.empty()) return;
    const Place place = way_.back();
    way_.pop_back();
    show(place);
}

void Navigator::show(Place place) {
    place_ = std::move(place);
    emit changed();
}

}  // namespace tamble
