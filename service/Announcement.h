#pragma once

namespace korvane {

/// Tells all screens and the main application, in whichever process, that a field of the record changed:
/// posts message 1191 with the field's item number.
void AnnounceChange(int item);

}  // namespace korvane
