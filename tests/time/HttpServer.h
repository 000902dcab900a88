#pragma once

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <chrono>
#include <map>
#include <string>
#include <thread>

/// A server on the loopback address that answers each path with fixed bytes, then hangs up.
class HttpServer {
public:
    /// The whole answer to each path, status line and all; another path gives a 404.
    explicit HttpServer(std::map<std::string, std::string> replies) : answers(std::move(replies)) {
        listener = socket(AF_INET, SOCK_STREAM, 0);
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        bind(listener, reinterpret_cast<sockaddr*>(&address), sizeof address);
        listen(listener, 8);
        socklen_t size = sizeof address;
        getsockname(listener, reinterpret_cast<sockaddr*>(&address), &size);
        port = ntohs(address.sin_port);
        worker = std::thread([this] { serve(); });
    }
    ~HttpServer() {
        shutdown(listener, SHUT_RDWR);
        worker.join();
        close(listener);
    }
    HttpServer(const HttpServer&) = delete;
    HttpServer& operator=(const HttpServer&) = delete;

    static std::string page(const std::string& body) {
        return "HTTP/1.1 200 OK\r\nContent-Length: " + std::to_string(body.size()) +
               "\r\nConnection: close\r\n\r\n" + body;
    }
    std::string url(const std::string& path) const {
        return "http://127.0.0.1:" + std::to_string(port) + path;
    }

private:
    void serve() {
        for (int client; (client = accept(listener, nullptr, nullptr)) >= 0; close(client)) {
            std::string request;
            char bytes[1024];
            ssize_t n = 0;
            while (request.find("\r\n\r\n") == std::string::npos &&
                   (n = recv(client, bytes, sizeof bytes, 0)) > 0)
                request.append(bytes, n);
            if (request.compare(0, 4, "GET ") == 0)
                answer(client, request.substr(4, request.find(' ', 4) - 4));
        }
    }

    // In two parts with a pause between, so that the reader has to wait for the second.
    void answer(int client, const std::string& path) const {
        const auto found = answers.find(path);
        const std::string reply = found != answers.end()
                                      ? found->second
                                      : "HTTP/1.1 404 Not Found\r\nContent-Length: "
                                        "9\r\nConnection: close\r\n\r\nnot here\n";
        const std::size_t half = reply.size() / 2;
        sendAll(client, reply.substr(0, half));
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        sendAll(client, reply.substr(half));
    }

    static void sendAll(int client, const std::string& bytes) {
        for (std::size_t sent = 0; sent < bytes.size();) {
            const ssize_t n = send(client, bytes.data() + sent, bytes.size() - sent, MSG_NOSIGNAL);
            if (n <= 0)
                return;
            sent += n;
        }
    }

    std::map<std::string, std::string> answers;
    int listener = -1;
    int port = 0;
    std::thread worker;
};
