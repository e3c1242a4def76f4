#pragma once

#include <functional>
#include <map>
#include <memory>
#include <utility>

namespace forms {

/// Holds one listener in its place; letting go of it ends the listening. It may outlive what is listened to.
class Subscription {
public:
    Subscription() = default;
    explicit Subscription(std::shared_ptr<void> hold) : hold_(std::move(hold)) {}

private:
    std::shared_ptr<void> hold_;
};

/// The listeners of one subject. A listener may be added or dropped while it is being told.
template <class... Arguments>
class Observers {
public:
    using Listener = std::function<void(Arguments...)>;

    [[nodiscard]] Subscription add(Listener listener) {
        const int id = next_++;
        (*listeners_)[id] = std::make_shared<Listener>(std::move(listener));
        std::weak_ptr<Map> all = listeners_;
        return Subscription(std::shared_ptr<void>(nullptr, [all, id](void*) {
            if (const auto map = all.lock()) {
                map->erase(id);
            }
        }));
    }

    void tell(Arguments... arguments) const {
        const auto map = listeners_;
        for (auto it = map->begin(); it != map->end();) {
            const int id = it->first;
            const std::shared_ptr<Listener> listener = it->second;
            (*listener)(arguments...);
            it = map->upper_bound(id);
        }
    }

private:
    using Map = std::map<int, std::shared_ptr<Listener>>;

    std::shared_ptr<Map> listeners_ = std::make_shared<Map>();
    int next_ = 0;
};

}  // namespace forms
