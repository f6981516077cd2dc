#include "PtyServer.h"

#include <QSocketNotifier>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <pty.h>
#include <termios.h>
#include <unistd.h>

namespace {
constexpr int kPaceMs = 10;
// Never more than one tick's worth at once after an idle spell.
constexpr double kMaxCredit = 256;
constexpr int kUnplugDelayMs = 1500;
}

PtyServer::PtyServer(Board board, QObject *parent) : QObject(parent), m_board(std::move(board))
{
    m_pace.setInterval(kPaceMs);
    connect(&m_pace, &QTimer::timeout, this, &PtyServer::onPace);
}

PtyServer::~PtyServer()
{
    closePty();
}

bool PtyServer::start()
{
    char name[256] = {};
    if (openpty(&m_master, &m_slave, name, nullptr, nullptr) != 0) {
        m_error = QString::fromLocal8Bit(std::strerror(errno));
        return false;
    }
    termios tio{};
    tcgetattr(m_slave, &tio);
    cfmakeraw(&tio);
    cfsetispeed(&tio, B115200);
    cfsetospeed(&tio, B115200);
    tcsetattr(m_slave, TCSANOW, &tio);
    fcntl(m_master, F_SETFL, fcntl(m_master, F_GETFL) | O_NONBLOCK);
    fcntl(m_master, F_SETFD, FD_CLOEXEC);
    fcntl(m_slave, F_SETFD, FD_CLOEXEC);
    m_slavePath = QString::fromLocal8Bit(name);

    m_notifier = new QSocketNotifier(m_master, QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, &PtyServer::onReadable);
    m_clock.start();
    return true;
}

void PtyServer::onReadable()
{
    char buf[512];
    const ssize_t n = ::read(m_master, buf, sizeof buf);
    if (n <= 0) {
        // With our own slave handle open this does not happen; if it does, do not spin on it.
        if (n == 0 || (errno != EAGAIN && errno != EINTR))
            m_notifier->setEnabled(false);
        return;
    }
    m_board.receive(QByteArray(buf, int(n)));
    if (m_board.hasOutput() && !m_pace.isActive()) {
        m_clock.restart();
        m_credit = kPaceMs * kBytesPerMs;
        m_pace.start();
    }
}

void PtyServer::onPace()
{
    m_credit = std::min(kMaxCredit, m_credit + double(m_clock.restart()) * kBytesPerMs);
    if (m_unsent.isEmpty())
        m_unsent = m_board.takeOutput(qsizetype(m_credit));
    if (!m_unsent.isEmpty()) {
        const ssize_t n = ::write(m_master, m_unsent.constData(), size_t(m_unsent.size()));
        if (n > 0) {
            m_unsent.remove(0, n);
            m_credit -= double(n);
        }
    }
    if (m_unsent.isEmpty() && m_board.pulledPlug()) {
        // The kernel drops what the reader has not fetched when the master closes, so the cable
        // goes only after the tool has had time to read the half answer.
        m_pace.stop();
        QTimer::singleShot(kUnplugDelayMs, this, [this] {
            closePty();
            emit unplugged();
        });
        return;
    }
    if (m_unsent.isEmpty() && !m_board.hasOutput())
        m_pace.stop();
}

void PtyServer::closePty()
{
    if (m_notifier) {
        m_notifier->setEnabled(false);
        delete m_notifier;
        m_notifier = nullptr;
    }
    if (m_slave >= 0)
        ::close(m_slave);
    if (m_master >= 0)
        ::close(m_master);
    m_slave = m_master = -1;
}
