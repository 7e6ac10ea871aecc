#include "platform/linux/network/HttpExchange.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <vector>

#include <curl/curl.h>
#include <linux/tcp.h>
#include <netinet/in.h>
#include <sys/socket.h>

namespace quindle {

namespace {

struct CurlFree
{
    void operator()(CURL* handle) const { curl_easy_cleanup(handle); }
    void operator()(curl_slist* list) const { curl_slist_free_all(list); }
};

struct CurlMultiFree
{
    void operator()(CURLM* handle) const { curl_multi_cleanup(handle); }
};

using Handle = std::unique_ptr<CURL, CurlFree>;
using MultiHandle = std::unique_ptr<CURLM, CurlMultiFree>;
using HeaderList = std::unique_ptr<curl_slist, CurlFree>;

struct Incoming
{
    qsizetype limit;
    QByteArray body{};
    std::vector<curl_socket_t> connections{}; ///< an abandoned one stays here
};

int takeConnection(void* incoming, curl_socket_t connection, curlsocktype /*purpose*/)
{
    static_cast<Incoming*>(incoming)->connections.push_back(connection);
    return CURL_SOCKOPT_OK;
}

std::size_t takeBody(const char* bytes, std::size_t /*one*/, std::size_t count, void* incoming)
{
    auto& [limit, body, connections] = *static_cast<Incoming*>(incoming);
    const auto size = static_cast<qsizetype>(count);
    // After decompression, so that a small answer cannot unfold into a large one.
    if (size > limit - body.size())
        return CURL_WRITEFUNC_ERROR;
    body.append(bytes, size);
    return count;
}

/// What the kernel took in: the library counts no framing, such as the extensions of chunks.
std::uint64_t bytesReceived(curl_socket_t connection)
{
    tcp_info info{};
    socklen_t size = sizeof info;
    getsockopt(connection, IPPROTO_TCP, TCP_INFO, &info, &size);
    return info.tcpi_bytes_received;
}

/// Other than 0 ends the exchange.
int endsAtLimit(void* incoming, curl_off_t, curl_off_t, curl_off_t, curl_off_t)
{
    const auto& [limit, body, connections] = *static_cast<const Incoming*>(incoming);
    std::uint64_t received = 0;
    for (const curl_socket_t connection : connections)
        received += bytesReceived(connection);
    // Four times the body's limit: headers and framing may take three times as much.
    return received > 4 * static_cast<std::uint64_t>(limit) ? 1 : 0;
}

/// The lines for the library: one without a value removes what it would add by itself.
HeaderList headerList(const QList<QByteArray>& headers)
{
    HeaderList list;
    for (const QByteArray& line : headers + QList<QByteArray>{"Accept:", "Content-Type:", "Expect:"})
        list.reset(curl_slist_append(list.release(), line.constData()));
    return list;
}

class Options
{
public:
    explicit Options(CURL* handle)
        : m_handle(handle)
    {
    }

    template <typename Value>
    void set(CURLoption option, Value value)
    {
        m_areAllSet = curl_easy_setopt(m_handle, option, value) == CURLE_OK && m_areAllSet;
    }

    /// False when the library cannot do what was asked for.
    bool areAllSet() const { return m_areAllSet; }

private:
    CURL* m_handle;
    bool m_areAllSet = true;
};

void setRequest(Options& options, const HttpRequest& request, curl_slist* headers)
{
    options.set(CURLOPT_URL, request.url.toEncoded(QUrl::RemoveFragment).constData());
    // The library speaks many protocols; only the address's own is allowed.
    options.set(CURLOPT_PROTOCOLS_STR, request.url.scheme().toLatin1().constData());
    options.set(CURLOPT_PROXY, ""); // whatever the environment names
    options.set(CURLOPT_HTTP_VERSION, long{CURL_HTTP_VERSION_1_1});
    options.set(CURLOPT_SSLVERSION, long{CURL_SSLVERSION_TLSv1_2});
    // Then only these are trusted, not the system's too.
    if (!request.authorities.isEmpty()) {
        options.set(CURLOPT_CAINFO, request.authorities.constData());
        options.set(CURLOPT_CAPATH, static_cast<const char*>(nullptr));
    }
    options.set(CURLOPT_HTTPHEADER, headers);
    options.set(CURLOPT_ACCEPT_ENCODING, ""); // decompress; the header itself is the request's
    if (request.body) {
        options.set(CURLOPT_POSTFIELDS, request.body->constData());
        options.set(CURLOPT_POSTFIELDSIZE_LARGE, curl_off_t{request.body->size()});
    }
}

void setLimits(Options& options, const HttpLimits& limits, Incoming& incoming)
{
    options.set(CURLOPT_TIMEOUT_MS, std::max<long>(1, limits.time.count())); // 0 would be for ever
    options.set(CURLOPT_QUICK_EXIT, 1L); // does not wait for a name server
    // Without it the library may time out lookups by a signal, which reaches any thread.
    options.set(CURLOPT_NOSIGNAL, 1L);
    options.set(CURLOPT_SOCKOPTFUNCTION, takeConnection);
    options.set(CURLOPT_SOCKOPTDATA, &incoming);
    options.set(CURLOPT_WRITEFUNCTION, takeBody);
    options.set(CURLOPT_WRITEDATA, &incoming);
    options.set(CURLOPT_NOPROGRESS, 0L);
    options.set(CURLOPT_XFERINFOFUNCTION, endsAtLimit);
    options.set(CURLOPT_XFERINFODATA, &incoming);
}

/// False when no complete answer came.
bool perform(CURL* handle, const std::stop_token& stop)
{
    const MultiHandle multi(curl_multi_init());
    curl_multi_add_handle(multi.get(), handle);
    // The end of the program must not wait for a silent server.
    const std::stop_callback wakeUp(stop, [&multi] { curl_multi_wakeup(multi.get()); });
    int running = 1;
    while (running > 0 && !stop.stop_requested()) {
        curl_multi_perform(multi.get(), &running);
        if (running > 0)
            curl_multi_poll(multi.get(), nullptr, 0, 1000, nullptr);
    }
    int left = 0;
    const CURLMsg* end = curl_multi_info_read(multi.get(), &left);
    const bool isComplete = end && end->data.result == CURLE_OK;
    curl_multi_remove_handle(multi.get(), handle);
    return isComplete;
}

} // namespace

std::optional<HttpAnswer> exchangeOverHttp(const HttpRequest& request, const HttpLimits& limits,
                                           const std::stop_token& stop)
{
    const Handle handle(curl_easy_init());
    const HeaderList headers = headerList(request.headers);
    Incoming incoming{.limit = limits.size};
    Options options(handle.get());
    setRequest(options, request, headers.get());
    setLimits(options, limits, incoming);
    if (!options.areAllSet() || !perform(handle.get(), stop))
        return std::nullopt;
    HttpAnswer answer{.body = incoming.body};
    const char* redirection = nullptr;
    curl_easy_getinfo(handle.get(), CURLINFO_RESPONSE_CODE, &answer.status);
    curl_easy_getinfo(handle.get(), CURLINFO_REDIRECT_URL, &redirection);
    answer.redirection = QUrl(QString::fromUtf8(redirection));
    return answer;
}

} // namespace quindle
