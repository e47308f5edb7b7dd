// A socket and the peer that it is connected to.
#pragma once

#include "Socket.h"
#include "TcpPeer.h"

#include <gtest/gtest.h>
#include <sys/ioctl.h>

struct ConnectedSocket
{
    ConnectedSocket()
    {
        EXPECT_EQ(socket.Open(AF_INET, SOCK_STREAM), 0);
        EXPECT_EQ(socket.Connect(listener.Address(), listener.Port(), 5000), 0);
        peer = listener.Accept();
        EXPECT_TRUE(peer.IsOpen());
    }

    /// Waits until `count` bytes from the peer can be received.
    void WaitForBytes(size_t count) const
    {
        int arrived = 0;
        for (int round = 0; round < TcpPeer::patience && static_cast<size_t>(arrived) < count; ++round) {
            ::poll(nullptr, 0, 1);
            ASSERT_EQ(::ioctl(socket.GetFD(), FIONREAD, &arrived), 0);
        }
        ASSERT_GE(static_cast<size_t>(arrived), count);
    }

    TcpListener listener;
    CSocket socket;
    TcpPeer peer;
};
