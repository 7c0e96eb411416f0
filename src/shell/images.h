#pragma once

namespace bornika {

/// Makes the program's own pictures (":/images/main.png", "splash.png", "about.png", "icon.png")
/// known: a static library's resources are not registered by themselves. Harmless when repeated.
void InitialiserImages();

}  // namespace bornika
