#pragma once

namespace setup {

/// Lets screen readers know what Qt cannot know by itself: that the drawing is one graphic
/// described in words, that a warning line opens, and that the status line is one.
void InstallAccessibility();

}  // namespace setup
