#pragma once

#include <sys/resource.h>
#include <unistd.h>

#include <csignal>

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

/// While it lives this process is an ordinary user: the superuser may write everything.
class SansPrivilege {
  public:
    SansPrivilege() : avant_(geteuid()) {
        if (avant_ == 0) [[maybe_unused]]
            const int rendu = seteuid(65534);
    }
    ~SansPrivilege() { [[maybe_unused]] const int rendu = seteuid(avant_); }
    SansPrivilege(const SansPrivilege&) = delete;
    SansPrivilege& operator=(const SansPrivilege&) = delete;

  private:
    uid_t avant_;
};

}  // namespace bornika::essai
