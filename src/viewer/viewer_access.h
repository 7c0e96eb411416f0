#pragma once

#include <functional>
#include <memory>
#include <vector>

class QObject;

namespace bornika {

class MainScreen;
class Trace;

/// The one place where the viewer form is held. It is made (its Load run) at the first reference
/// and again at the first reference after it was closed.
///
/// A closed form is hidden at once and deleted later, when none of its operations and no download
/// runs any more: the close may come from inside a yield of one of them.
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
    void Ecarter();
    void PrevoirMenage();
    void Menage();

    MainScreen& ecran_;
    std::unique_ptr<Trace> trace_;
    std::vector<std::unique_ptr<Trace>> fermees_;
    /// Receives the calls that were put off.
    std::unique_ptr<QObject> contexte_;
};

}  // namespace bornika
