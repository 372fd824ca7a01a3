#pragma once

#include <memory>

#include "engine/widgets/elements/TextElement.h"

namespace korvane {

/// Ownership of a text element, shared with all who got it from here before, so that an element that is bound
/// to several controls is deleted once. Null for an element that lies on a control other than `owner` that
/// did not get it from here. The element is not null.
std::shared_ptr<CLQTextElement> ShareTextElement(CLQTextElement* element, const CLQBaseCtrl* owner);

}  // namespace korvane
