#include "controls/parts/SharedElement.h"

#include <map>

namespace korvane {

namespace {

using Elements = std::map<CLQTextElement*, std::weak_ptr<CLQTextElement>>;

Elements& SharedElements() {
    // Never destroyed: controls that end with the program still leave it.
    static auto* const elements = new Elements;
    return *elements;
}

void Delete(CLQTextElement* element) {
    SharedElements().erase(element);
    delete element;
}

}  // namespace

std::shared_ptr<CLQTextElement> ShareTextElement(CLQTextElement* element, const CLQBaseCtrl* owner) {
    const auto known = SharedElements().find(element);
    if (known != SharedElements().end())
        return known->second.lock();
    const CLQBaseCtrl* const father = element->GetFatherCtrl();
    if (father && father != owner)
        return nullptr;
    std::shared_ptr<CLQTextElement> shared(element, &Delete);
    SharedElements().emplace(element, shared);
    return shared;
}

}  // namespace korvane
