#pragma once

class QTcpSocket;

namespace sandbox {

struct HttpResponse;

// Sends the answer in the way that it says. What takes time ends with the socket.
void deliver(QTcpSocket* socket, const HttpResponse& response);

}  // namespace sandbox
