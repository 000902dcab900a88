#include "HttpTransfer.h"

#include "../frame/SharedLibrary.h"
#include <curl/curl.h>
#include <strings.h>

#include <algorithm>
#include <cstdlib>
#include <string>

namespace ORV {
namespace {
constexpr long connect_secs = 30; // a server that doesn't answer
constexpr long stall_secs = 60;   // or that stops sending

/// The operations of libcurl. It is loaded on first use, since that takes longer than all else of a
/// start, and most runs read no remote file.
class CurlLibrary : public SharedLibrary {
public:
    decltype(&curl_easy_init) easy_init = find("curl_easy_init");
    decltype(&curl_easy_setopt) easy_setopt = find("curl_easy_setopt");
    decltype(&curl_easy_cleanup) easy_cleanup = find("curl_easy_cleanup");
    decltype(&curl_multi_init) multi_init = find("curl_multi_init");
    decltype(&curl_multi_add_handle) multi_add_handle = find("curl_multi_add_handle");
    decltype(&curl_multi_remove_handle) multi_remove_handle = find("curl_multi_remove_handle");
    decltype(&curl_multi_perform) multi_perform = find("curl_multi_perform");
    decltype(&curl_multi_poll) multi_poll = find("curl_multi_poll");
    decltype(&curl_multi_info_read) multi_info_read = find("curl_multi_info_read");
    decltype(&curl_multi_cleanup) multi_cleanup = find("curl_multi_cleanup");

    /// Returns null when the library, or an operation of it, isn't there.
    static const CurlLibrary* get() {
        static const CurlLibrary library;
        return library.isLoaded() ? &library : nullptr;
    }

private:
    CurlLibrary() : SharedLibrary("libcurl.so.4") {}
};

bool contains(const std::string& text, const char* part) {
    return text.find(part) != std::string::npos;
}
} // namespace

HttpTransfer::HttpTransfer(const char* url, Buffer* a_body) : body(a_body) {
    if (CurlLibrary::get() && start(url))
        perform();
}

HttpTransfer::~HttpTransfer() {
    const CurlLibrary* curl = CurlLibrary::get();
    if (multi && easy)
        curl->multi_remove_handle(multi, static_cast<CURL*>(easy));
    if (easy)
        curl->easy_cleanup(static_cast<CURL*>(easy));
    if (multi)
        curl->multi_cleanup(multi);
}

bool HttpTransfer::start(const char* url) {
    const CurlLibrary* curl = CurlLibrary::get();
    easy = curl->easy_init();
    multi = curl->multi_init();
    if (!easy || !multi)
        return false;

    using Receive = std::size_t (*)(char*, std::size_t, std::size_t, void*);
    const Receive take_header = [](char* line, std::size_t, std::size_t n, void* transfer) {
        static_cast<HttpTransfer*>(transfer)->readHeader(line, n);
        return n;
    };
    const Receive take_body = [](char* bytes, std::size_t, std::size_t n, void* transfer) {
        return static_cast<HttpTransfer*>(transfer)->store(bytes, n);
    };
    curl->easy_setopt(easy, CURLOPT_URL, url);
    curl->easy_setopt(easy, CURLOPT_HEADERFUNCTION, take_header);
    curl->easy_setopt(easy, CURLOPT_HEADERDATA, this);
    curl->easy_setopt(easy, CURLOPT_WRITEFUNCTION, take_body);
    curl->easy_setopt(easy, CURLOPT_WRITEDATA, this);
    curl->easy_setopt(easy, CURLOPT_CONNECTTIMEOUT, connect_secs);
    curl->easy_setopt(easy, CURLOPT_LOW_SPEED_LIMIT, 1L);
    curl->easy_setopt(easy, CURLOPT_LOW_SPEED_TIME, stall_secs);
    return curl->multi_add_handle(multi, easy) == CURLM_OK;
}

void HttpTransfer::perform() {
    const CurlLibrary* curl = CurlLibrary::get();
    if (curl->multi_perform(multi, &running) != CURLM_OK)
        running = 0;
    int waiting = 0;
    while (const CURLMsg* message = curl->multi_info_read(multi, &waiting))
        if (message->msg == CURLMSG_DONE)
            complete = message->data.result == CURLE_OK;
}

void HttpTransfer::wait(float seconds) {
    if (!isRunning())
        return;
    if (CurlLibrary::get()->multi_poll(multi, nullptr, 0, int(seconds * 1000), nullptr) != CURLM_OK)
        running = 0;
    else
        perform();
}

void HttpTransfer::readHeader(const char* line, std::size_t length) {
    static const std::string length_field = "Content-Length: ";
    const std::string text(line, length);
    if (text.compare(0, 5, "HTTP/") == 0) {
        const bool moved = !body && contains(text, "301");
        size = contains(text, "200") || moved ? unknown : refused;
    } else if (size != refused &&
               strncasecmp(text.c_str(), length_field.c_str(), length_field.size()) == 0) {
        size = std::max(std::strtol(text.c_str() + length_field.size(), nullptr, 10), 0L);
    }
}

std::size_t HttpTransfer::store(const char* bytes, std::size_t n) {
    received += long(n);
    if (!body || size == refused) // the page that comes with a refusal is no data
        return n;
    body->clearUsed();
    const int needed = body->size + int(n);
    if (needed > body->max) // by steps, many pieces would copy the bytes over and over
        body->resize(2 * needed);
    return body->add(bytes, int(n)) ? n : 0;
}

} // namespace ORV
