// Receiving a burst of notifications over loopback and draining it message by message, against a bare socket that reads
// the same bytes. The sender runs in a thread of its own and does not count.

#include "ratio.h"

#include <net/protocol/packets.h>
#include <net/protocol/wire.h>
#include <net/qlwtcpsocket.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QEventLoop>
#include <QtNetwork/QTcpServer>

#include <benchmark/benchmark.h>

#include <sys/socket.h>

#include <array>
#include <thread>

namespace {

constexpr int kMessages = 200'000;
constexpr int kPayload = 150;
constexpr double kPromise = 1.5;
constexpr int kRounds = 101; // a second: what else begins on the machine at the same time is soon done

const QByteArray &wire()
{
    static const QByteArray bytes =
        encodeMessage(MessageHeader::Plain, CMD_NOTIFICATION, QByteArray(kPayload, 'x')).repeated(kMessages);
    return bytes;
}

/// Connects the socket to a sender that writes the burst, and runs the event loop until `done` quits it.
double receive(QTcpSocket &socket, QEventLoop &loop)
{
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    socket.connectToHost(QHostAddress::LocalHost, server.serverPort());
    server.waitForNewConnection(5000);
    QTcpSocket *peer = server.nextPendingConnection();
    const int descriptor = int(peer->socketDescriptor());
    // Blocking writes keep the sender out of the receiver's way.
    std::thread sender([descriptor] {
        const QByteArray &bytes = wire();
        for (qsizetype sent = 0; sent < bytes.size();) {
            const ssize_t taken =
                send(descriptor, bytes.data() + sent, std::size_t(bytes.size() - sent), MSG_NOSIGNAL);
            if (taken > 0)
                sent += taken;
            else
                std::this_thread::yield();
        }
    });
    const double spent = threadMilliseconds([&loop] { loop.exec(); });
    sender.join();
    return spent;
}

double receiveMessages()
{
    QLWTCPSocket socket;
    QEventLoop loop;
    int messages = 0;
    QByteArray payload;
    QObject::connect(&socket, &QLWTCPSocket::messageReady, &socket, [&] {
        uint command = 0;
        while (socket.getMessage(&command, &payload, nullptr))
            ++messages;
        if (messages == kMessages)
            loop.quit();
    });
    return receive(socket, loop);
}

double receiveBytes()
{
    QTcpSocket socket;
    QEventLoop loop;
    qint64 bytes = 0;
    std::array<char, 65535> buffer{};
    QObject::connect(&socket, &QIODevice::readyRead, &socket, [&] {
        for (qint64 got = 0; (got = socket.read(buffer.data(), buffer.size())) > 0;)
            bytes += got;
        if (bytes == wire().size())
            loop.quit();
    });
    return receive(socket, loop);
}

void bench(benchmark::State &state, double (*work)())
{
    for (auto _ : state)
        state.SetIterationTime(work() / 1000);
    state.SetItemsProcessed(state.iterations() * kMessages);
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    benchmark::RegisterBenchmark("messages", &bench, &receiveMessages)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("bareSocket", &bench, &receiveBytes)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    printRatio("link: ms for 200,000 messages, to a bare socket", &receiveMessages, &receiveBytes, kPromise,
               kRounds);
    return 0;
}
