#pragma once

#include <QString>
#include <functional>
#include <memory>

namespace bornika {

/// A program of its own that was started from here. One that outlives this object goes on
/// undisturbed: whoever stops waiting for it does not stop it.
class ProgrammeExterne {
  public:
    virtual ~ProgrammeExterne() = default;

    /// True while it runs. Never waits.
    virtual bool EnCours() = 0;
};

/// Starts the program at that path with one argument; null when it could not be started.
using Lanceur = std::function<std::unique_ptr<ProgrammeExterne>(const QString& programme,
                                                                const QString& argument)>;

/// The operating system's own way, without a shell: whatever blanks, quotes or letters the argument
/// holds, the program gets it in one piece, in UTF-8. It runs in the current folder, with the
/// environment of this program, and in a session of its own.
std::unique_ptr<ProgrammeExterne> LancerProgramme(const QString& programme,
                                                  const QString& argument);

}  // namespace bornika
