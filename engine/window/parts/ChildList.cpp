#include "engine/window/parts/ChildList.h"

#include <algorithm>

#include "engine/window/BaseCtrl.h"

namespace korvane {

struct ChildList::Slot {
    explicit Slot(CLQBaseCtrl* child)
        : ctrl(child), life(child->WatchLife()), owned(child->IsCreatedWithNew()) {}
    Slot(const Slot&) = delete;
    Slot& operator=(const Slot&) = delete;
    ~Slot() {
        if (owned && life.IsAlive())
            delete ctrl;
    }

    CLQBaseCtrl* ctrl;
    LifeWatch life;
    bool owned;
};

void ChildList::Add(CLQBaseCtrl* child) {
    slots_.push_back(std::make_shared<Slot>(child));
}

bool ChildList::Remove(CLQBaseCtrl* child, bool destroy) {
    const auto found = std::find_if(slots_.begin(), slots_.end(), [child](const std::shared_ptr<Slot>& slot) {
        return slot->ctrl == child && slot->life.IsAlive();
    });
    if (found == slots_.end())
        return false;
    (*found)->owned = false;
    slots_.erase(found);
    if (destroy && child->IsCreatedWithNew())
        delete child;
    return true;
}

bool ChildList::Contains(const CLQBaseCtrl* child) const {
    return std::any_of(slots_.begin(), slots_.end(), [child](const std::shared_ptr<Slot>& slot) {
        return slot->ctrl == child && slot->life.IsAlive();
    });
}

void ChildList::Compact() {
    slots_.erase(std::remove_if(slots_.begin(), slots_.end(),
                                [](const std::shared_ptr<Slot>& slot) { return !slot->life.IsAlive(); }),
                 slots_.end());
}

CLQBaseCtrl* ChildList::At(std::size_t index) const {
    if (index >= slots_.size() || !slots_[index]->life.IsAlive())
        return nullptr;
    return slots_[index]->ctrl;
}

}  // namespace korvane
