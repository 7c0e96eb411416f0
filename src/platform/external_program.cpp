#include "platform/external_program.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QFile>
#include <cerrno>
#include <thread>

namespace bornika {

namespace {

pid_t AttendreProcessus(pid_t pid, int options) {
    pid_t rendu;
    do
        rendu = waitpid(pid, nullptr, options);
    while (rendu == -1 && errno == EINTR);
    return rendu;
}

class Enfant final : public ProgrammeExterne {
  public:
    explicit Enfant(pid_t pid) : pid_(pid) {}

    // Somebody has to take note of its end, or it stays behind as a dead entry of the process list.
    ~Enfant() override {
        if (EnCours()) std::thread([pid = pid_] { AttendreProcessus(pid, 0); }).detach();
    }

    bool EnCours() override {
        // The system may give the number of an ended child to another one: it is asked once.
        if (!fini_) fini_ = AttendreProcessus(pid_, WNOHANG) != 0;
        return !fini_;
    }

  private:
    pid_t pid_;
    bool fini_ = false;
};

/// A session of its own: what ends this program from its terminal, such as Ctrl+C, does not reach
/// the other one.
class AttributsDeLancement {
  public:
    AttributsDeLancement() {
        posix_spawnattr_init(&attributs_);
        posix_spawnattr_setflags(&attributs_, POSIX_SPAWN_SETSID);
    }
    ~AttributsDeLancement() { posix_spawnattr_destroy(&attributs_); }
    AttributsDeLancement(const AttributsDeLancement&) = delete;
    AttributsDeLancement& operator=(const AttributsDeLancement&) = delete;

    const posix_spawnattr_t* Adresse() const { return &attributs_; }

  private:
    posix_spawnattr_t attributs_;
};

}  // namespace

std::unique_ptr<ProgrammeExterne> LancerProgramme(const QString& programme,
                                                  const QString& argument) {
    QByteArray chemin = QFile::encodeName(programme);
    QByteArray texte = argument.toUtf8();
    char* const arguments[] = {chemin.data(), texte.data(), nullptr};
    const AttributsDeLancement attributs;
    pid_t pid = 0;
    if (posix_spawn(&pid, chemin.constData(), nullptr, attributs.Adresse(), arguments, environ) !=
        0)
        return nullptr;
    return std::make_unique<Enfant>(pid);
}

}  // namespace bornika
