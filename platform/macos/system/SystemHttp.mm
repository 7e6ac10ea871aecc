#include <utility>

#include "platform/macos/MacCalls.h"
#include "platform/macos/system/CocoaText.h"

namespace quindle {

namespace {

using Answered = std::function<void(const std::optional<HttpAnswer>&)>;

std::optional<HttpAnswer> answerOf(NSData* data, NSURLResponse* response, NSError* error)
{
    if (error)
        return std::nullopt;
    const auto status = static_cast<int>(((NSHTTPURLResponse*)response).statusCode);
    return HttpAnswer{status, valueFromCf((__bridge CFTypeRef)data).toByteArray()};
}

NSMutableURLRequest* requestOf(const QString& url, double patience)
{
    NSMutableURLRequest* const request =
        [[NSMutableURLRequest alloc] initWithURL:[NSURL URLWithString:cocoaText(url)]];
    request.timeoutInterval = patience;
    return request;
}

NSMutableURLRequest* postOf(const QString& url, const QByteArray& body, double patience)
{
    NSMutableURLRequest* const request = requestOf(url, patience);
    request.HTTPMethod = @"POST";
    request.HTTPBody = (__bridge_transfer NSData*)cfFromValue(body).release();
    return request;
}

/// Nothing is kept on the disk. Null is a queue of the session's own.
NSURLSession* sessionOn(NSOperationQueue* queue)
{
    return [NSURLSession sessionWithConfiguration:[NSURLSessionConfiguration ephemeralSessionConfiguration]
                                         delegate:nil
                                    delegateQueue:queue];
}

/// Answered on the queue of the session, which ends with the answer.
NSURLSessionDataTask* start(NSMutableURLRequest* request, NSURLSession* session, Answered answered)
{
    const auto handler = ^(NSData* data, NSURLResponse* response, NSError* error) {
      answered(answerOf(data, response, error));
    };
    NSURLSessionDataTask* const task = [session dataTaskWithRequest:request completionHandler:handler];
    [task resume];
    [session finishTasksAndInvalidate];
    return task;
}

/// The end of a request that is waited for; the last of both sides frees it.
struct Waiting
{
    dispatch_semaphore_t done = dispatch_semaphore_create(0);
    std::optional<HttpAnswer> answer;
};

/// False when the patience ends first.
bool hasEnded(const Waiting& waiting, double patience)
{
    const auto nanoseconds = static_cast<std::int64_t>(patience * NSEC_PER_SEC);
    return dispatch_semaphore_wait(waiting.done, dispatch_time(DISPATCH_TIME_NOW, nanoseconds)) == 0;
}

class SystemHttp : public HttpCalls
{
public:
    void post(const QString& url, const QByteArray& body, double patience,
              std::function<void(const HttpAnswer&)> answered) override
    {
        const auto hear = [answered = std::move(answered)](const std::optional<HttpAnswer>& answer) {
            if (answer)
                answered(*answer);
        };
        // On the main thread, where whoever asked lives.
        start(postOf(url, body, patience), sessionOn([NSOperationQueue mainQueue]), hear);
    }

    // Not on the main queue: the main thread waits here, and would never hear of the answer.
    std::optional<HttpAnswer> get(const QString& url, double patience) override
    {
        const auto waiting = std::make_shared<Waiting>();
        const auto hear = [waiting](const std::optional<HttpAnswer>& answer) {
            waiting->answer = answer;
            dispatch_semaphore_signal(waiting->done);
        };
        NSURLSessionDataTask* const task = start(requestOf(url, patience), sessionOn(nil), hear);
        const bool isInTime = hasEnded(*waiting, patience);
        [task cancel]; // one that has ended stays as it is
        return isInTime ? waiting->answer : std::nullopt;
    }
};

} // namespace

std::unique_ptr<HttpCalls> systemHttp()
{
    return std::make_unique<SystemHttp>();
}

} // namespace quindle
