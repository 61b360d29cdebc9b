// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/process/decoder_socket.h"

#include <sys/socket.h>

#include <cerrno>
#include <cstring>

namespace varnel {

namespace {

// Room for two descriptors beside a message.
struct Control {
    alignas(cmsghdr) std::array<char, CMSG_SPACE(2 * sizeof(int))> bytes{};
};

// Every descriptor that came gets an owner, whether it was expected or not.
void TakeDescriptors(msghdr& head, std::array<Descriptor, 2>& taken) {
    for (cmsghdr* part = CMSG_FIRSTHDR(&head); part != nullptr; part = CMSG_NXTHDR(&head, part)) {
        if (part->cmsg_level != SOL_SOCKET || part->cmsg_type != SCM_RIGHTS) {
            continue;
        }
        const std::size_t count = (part->cmsg_len - CMSG_LEN(0)) / sizeof(int);
        for (std::size_t i = 0; i < count; ++i) {
            int number = -1;
            std::memcpy(&number, CMSG_DATA(part) + i * sizeof(int), sizeof number);
            Descriptor owned(number);
            if (i < taken.size()) {
                taken[i] = std::move(owned);
            }
        }
    }
}

}  // namespace

bool SendMessage(int socket, const void* message, std::size_t length,
                 std::array<int, 2> descriptors) {
    iovec part{const_cast<void*>(message), length};
    Control control;
    msghdr head{};
    head.msg_iov = &part;
    head.msg_iovlen = 1;
    if (descriptors[0] >= 0 && descriptors[1] >= 0) {
        head.msg_control = control.bytes.data();
        head.msg_controllen = control.bytes.size();
        cmsghdr* const first = CMSG_FIRSTHDR(&head);
        first->cmsg_level = SOL_SOCKET;
        first->cmsg_type = SCM_RIGHTS;
        first->cmsg_len = CMSG_LEN(sizeof descriptors);
        std::memcpy(CMSG_DATA(first), descriptors.data(), sizeof descriptors);
    }
    ssize_t sent = 0;
    do {
        sent = sendmsg(socket, &head, MSG_NOSIGNAL);
    } while (sent < 0 && errno == EINTR);
    return sent == static_cast<ssize_t>(length);
}

bool ReceiveMessage(int socket, void* message, std::size_t length,
                    std::array<Descriptor, 2>* descriptors) {
    iovec part{message, length};
    Control control;
    msghdr head{};
    head.msg_iov = &part;
    head.msg_iovlen = 1;
    // Without room for descriptors the system does not let any in.
    if (descriptors != nullptr) {
        head.msg_control = control.bytes.data();
        head.msg_controllen = control.bytes.size();
    }
    ssize_t received = 0;
    do {
        received = recvmsg(socket, &head, MSG_CMSG_CLOEXEC);
    } while (received < 0 && errno == EINTR);
    if (received > 0 && descriptors != nullptr) {
        TakeDescriptors(head, *descriptors);
    }
    return received == static_cast<ssize_t>(length) && (head.msg_flags & MSG_TRUNC) == 0;
}

bool HasMessage(int socket) {
    // By a call that a confined process may make, too.
    char first = 0;
    iovec part{&first, 1};
    msghdr head{};
    head.msg_iov = &part;
    head.msg_iovlen = 1;
    return recvmsg(socket, &head, MSG_PEEK | MSG_DONTWAIT) >= 0 ||
           (errno != EAGAIN && errno != EINTR);
}

}  // namespace varnel
