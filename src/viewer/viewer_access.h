#pragma once

#include <functional>
#include <memory>

namespace bornika {

class MainScreen;
class Trace;

/// The one place where the viewer form is held. It is made (its Load run) at the first reference and
/// again at the first reference after it was closed.
class AccesTrace {
  public:
    explicit AccesTrace(MainScreen& ecran);
    ~AccesTrace();

    /// The form, made now if there is none.
    Trace& Fiche();
    /// The form if there is one.
    Trace* Presente() const { return trace_.get(); }

    /// Called with each form just made and loaded: the table of events ties its controls.
    std::function<void(Trace&)> apresCreation;

  private:
    MainScreen& ecran_;
    std::unique_ptr<Trace> trace_;
};

}  // namespace bornika
