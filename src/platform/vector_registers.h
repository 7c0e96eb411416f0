#pragma once

namespace bornika {

/// Marks the upper halves of the processor's vector registers as unused.
///
/// Toolkit code that paints or starts up can leave them in use. From then on every change between
/// older and newer vector instructions, as between a number and a copied text, costs a hundred
/// cycles: a long loop that mixes the two takes three times as long. Where the processor has no
/// such registers nothing happens.
void LibererRegistresVectoriels();

}  // namespace bornika
