#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "demo/headunit/tour/TourScript.h"
#include "tools/systemservice/SystemService.h"

namespace korvane::demo {

/// Plays a script on the open screen, in virtual time: the finger's touches go the way of real ones, changes
/// of the system record go through the service, and a picture shows what the screen shows at that moment.
///
/// The player works in the waits of the message loop and ends the loop with its last step.
class Tour {
  public:
    /// Pictures go into `folder`, numbered in their order; a script of one picture writes it to `file`.
    static Tour IntoFolder(const TourScript& script, const std::string& folder);
    static Tour IntoFile(const std::string& file);

    /// Takes over the clock, which stands at 10:08 on a spring morning, and the loop's waits. The tour stays
    /// alive until the loop has ended.
    void Start();
    /// Why a picture could not be written; empty if all were.
    const std::string& Failure() const { return failure_; }
    /// The files written so far.
    const std::vector<std::string>& Pictures() const { return pictures_; }

  private:
    bool PlayNext();
    void Touch(unsigned message, const TourStep& step) const;
    bool LetTimePass(unsigned ms);
    void TakePicture(const std::string& name);

    std::unique_ptr<tools::SystemService> service_;
    std::vector<TourStep> steps_;
    std::string folder_;
    std::string file_;
    std::size_t next_ = 0;
    unsigned waited_ = 0;  // milliseconds of the current wait that have passed
    std::vector<std::string> pictures_;
    std::string failure_;
};

}  // namespace korvane::demo
