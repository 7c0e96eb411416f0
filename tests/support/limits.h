#pragma once

#include <sys/resource.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>

namespace bornika::essai {

/// While it lives no file of this process grows beyond so many bytes, as on a disk that fills up.
class TailleLimitee {
  public:
    explicit TailleLimitee(rlim_t octets) {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &avant_);
        const rlimit etroite{octets, avant_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &etroite);
    }
    ~TailleLimitee() { setrlimit(RLIMIT_FSIZE, &avant_); }
    TailleLimitee(const TailleLimitee&) = delete;
    TailleLimitee& operator=(const TailleLimitee&) = delete;

  private:
    rlimit avant_{};
};

/// While it lives this process is an ordinary user, who may go where everybody may: the superuser
/// may write everything.
class SansPrivilege {
  public:
    SansPrivilege() {
        if (superutilisateur_) Devenir(65534);
    }
    ~SansPrivilege() {
        if (superutilisateur_) Devenir(0);
    }
    SansPrivilege(const SansPrivilege&) = delete;
    SansPrivilege& operator=(const SansPrivilege&) = delete;

  private:
    // The saved number alone stays: with it there is a way back.
    static void Devenir(uid_t utilisateur) {
        if (setresuid(utilisateur, utilisateur, 0) != 0) std::abort();
    }

    const bool superutilisateur_ = geteuid() == 0;
};

}  // namespace bornika::essai
