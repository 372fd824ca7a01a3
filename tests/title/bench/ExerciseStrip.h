#pragma once

class CLQTitleDialog;

namespace korvane::test {

class Scene;

/// Calls everything that a strip offers, with harmless and with odd arguments, hands it all messages, touches
/// every control and lets all its timers run. To be survived, whatever is amiss.
void ExerciseStrip(CLQTitleDialog& dialog, Scene& scene);

}  // namespace korvane::test
