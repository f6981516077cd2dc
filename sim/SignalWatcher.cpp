#include "SignalWatcher.h"

#include <QSocketNotifier>

#include <csignal>
#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

int SignalWatcher::s_fds[2] = {-1, -1};

SignalWatcher::SignalWatcher(QObject *parent) : QObject(parent)
{
    if (::socketpair(AF_UNIX, SOCK_STREAM, 0, s_fds) != 0)
        return;
    fcntl(s_fds[0], F_SETFD, FD_CLOEXEC);
    fcntl(s_fds[1], F_SETFD, FD_CLOEXEC);
    m_notifier = new QSocketNotifier(s_fds[1], QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, [this] {
        char c;
        if (::read(s_fds[1], &c, 1) > 0)
            emit stopRequested();
    });
    struct sigaction sa {};
    sa.sa_handler = &SignalWatcher::handler;
    sigemptyset(&sa.sa_mask);
    sa.sa_flags = SA_RESTART;
    sigaction(SIGINT, &sa, nullptr);
    sigaction(SIGTERM, &sa, nullptr);
}

SignalWatcher::~SignalWatcher()
{
    ::signal(SIGINT, SIG_DFL);
    ::signal(SIGTERM, SIG_DFL);
    delete m_notifier;
    ::close(s_fds[0]);
    ::close(s_fds[1]);
    s_fds[0] = s_fds[1] = -1;
}

void SignalWatcher::handler(int)
{
    const char c = 1;
    if (s_fds[0] >= 0)
        [[maybe_unused]] auto n = ::write(s_fds[0], &c, 1);
}
