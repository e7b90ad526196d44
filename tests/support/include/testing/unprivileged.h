#pragma once
// Runs a check as a user without privileges: a test that a file may not be
// read means nothing to root, who reads everything (CI runs as root).

#include <functional>

#include <sys/wait.h>
#include <unistd.h>

namespace korvex::testing {

// The body's result (0..255) from a child process that gave up root first;
// -1 when the child failed another way.
inline int runUnprivileged(const std::function<int()>& body) {
    const pid_t child = ::fork();
    if (child == 0) {
        constexpr uid_t kNobody = 65534;
        if (::geteuid() == 0 && (::setgid(kNobody) != 0 || ::setuid(kNobody) != 0)) ::_exit(250);
        ::_exit(body());
    }
    int status = 0;
    if (child < 0 || ::waitpid(child, &status, 0) != child || !WIFEXITED(status)) return -1;
    return WEXITSTATUS(status);
}

}  // namespace korvex::testing
