// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// In place of the decoder: gives pixels as it should, and then does what the photo's file tells.
#include <sys/socket.h>
#include <unistd.h>

#include <QByteArray>
#include <csignal>

#include "decoder/process/decoder_socket.h"
#include "decoder/process/protocol.h"
#include "decoder/process/sandbox.h"

namespace {

// As one that hostile bytes have taken over.
void TrySomethingForbidden() {
    varnel::Confine();
    socket(AF_INET, SOCK_STREAM, 0);
}

void GoOn(const QByteArray& order, varnel::DecoderAnswer answer) {
    if (order.startsWith("signal ")) {
        raise(order.mid(7).toInt());
    } else if (order == "hang") {
        pause();
    } else if (order == "forbidden") {
        TrySomethingForbidden();
    } else if (order == "stutter") {
        varnel::SendMessage(varnel::decoderSocket, "x", 1);
    } else if (order == "other number") {
        ++answer.number;
    } else if (order.startsWith("length ")) {
        answer.metadataLength = order.mid(7).toULongLong();
    }
    varnel::SendMessage(varnel::decoderSocket, &answer, sizeof answer);
}

// A picture that is begun in pieces.
void BeginPieces(const QByteArray& order, varnel::DecoderAnswer answer, int file) {
    answer.outcome = varnel::inPieces;
    answer.size = answer.bitmap = {2000, order == "rows too large" ? 40'000 : 1000};
    answer.pitch = 6000;
    const varnel::PieceLayout layout(answer.bitmap, false);
    (void)!ftruncate(file, static_cast<off_t>(layout.Length()));
    varnel::SendMessage(varnel::decoderSocket, &answer, sizeof answer);
    answer.outcome = 0;
    if (order.startsWith("pieces ")) {
        GoOn(order.mid(7), answer);
        return;
    }
    varnel::SendMessage(varnel::decoderSocket, &answer, sizeof answer);
    const int pieces =
        layout.count + (order == "rows too many" ? 1 : 0) - (order == "rows missing" ? 1 : 0);
    for (int n = 0; n < pieces; ++n) {
        answer.outcome = varnel::rowsCame;
        std::uint32_t taken = 0;
        varnel::SendMessage(varnel::decoderSocket, &answer, sizeof answer);
        varnel::ReceiveMessage(varnel::decoderSocket, &taken, sizeof taken, nullptr);
    }
    answer.outcome = order == "rows given up" ? varnel::rowsGivenUp : 0;
    GoOn(order.mid(5), answer);
}

}  // namespace

int main() {
    varnel::DecoderRequest request;
    std::array<varnel::Descriptor, 2> files;
    while (varnel::ReceiveMessage(varnel::decoderSocket, &request, sizeof request, &files)) {
        QByteArray order(100, '\0');
        order.truncate(read(files[0].Get(), order.data(), order.size()));
        if (order == "forbidden at once") {
            TrySomethingForbidden();
        }
        varnel::DecoderAnswer answer;
        answer.number = request.number;
        answer.metadataFollows = 1;
        if (request.inPieces && (order.startsWith("pieces ") || order.startsWith("rows "))) {
            varnel::SetReason(answer, {});
            BeginPieces(order, answer, files[1].Get());
            continue;
        }
        if (request.kind == varnel::ReadKind::Whole) {
            answer.size = answer.bitmap = {4, 2};
            answer.pitch = 12;
        }
        const QByteArray rowsAndMore(100, 'p');
        (void)!pwrite(files[1].Get(), rowsAndMore.constData(), rowsAndMore.size(), 0);
        varnel::SendMessage(varnel::decoderSocket, &answer, sizeof answer);
        GoOn(order, answer);
    }
    return 0;
}
