// A socket and the peer that it is connected to.
#pragma once

#include "Socket.h"
#include "TcpPeer.h"

#include <gtest/gtest.h>

struct ConnectedSocket
{
    ConnectedSocket()
    {
        EXPECT_EQ(socket.Open(AF_INET, SOCK_STREAM), 0);
        EXPECT_EQ(socket.Connect(listener.Address(), listener.Port(), 5000), 0);
        peer = listener.Accept();
        EXPECT_TRUE(peer.IsOpen());
    }

    TcpListener listener;
    CSocket socket;
    TcpPeer peer;
};
