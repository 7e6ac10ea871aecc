#include <utility>

#include "platform/macos/CocoaText.h"
#include "platform/macos/MacCalls.h"

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

/// Answered on the queue; null is one of the system's own.
NSURLSessionDataTask* start(NSMutableURLRequest* request, NSOperationQueue* queue, Answered answered)
{
    NSURLSessionConfiguration* const configuration =
        [NSURLSessionConfiguration ephemeralSessionConfiguration];
    NSURLSession* const session = [NSURLSession sessionWithConfiguration:configuration
                                                                delegate:nil
                                                           delegateQueue:queue];
    NSURLSessionDataTask* const task =
        [session dataTaskWithRequest:request
                   completionHandler:^(NSData* data, NSURLResponse* response, NSError* error) {
                     answered(answerOf(data, response, error));
                   }];
    [task resume];
    [session finishTasksAndInvalidate];
    return task;
}

/// The end of a request that is waited for; whoever comes last keeps it alive no longer.
struct Waiting
{
    dispatch_semaphore_t done = dispatch_semaphore_create(0);
    std::optional<HttpAnswer> answer;
};

class SystemHttp : public HttpCalls
{
public:
    void post(const QString& url, const QByteArray& body, double patience,
              std::function<void(const HttpAnswer&)> answered) override
    {
        NSMutableURLRequest* const request = requestOf(url, patience);
        request.HTTPMethod = @"POST";
        request.HTTPBody = (__bridge_transfer NSData*)cfFromValue(body).release();
        start(request, [NSOperationQueue mainQueue], [answered](const std::optional<HttpAnswer>& answer) {
            if (answer)
                answered(*answer);
        });
    }

    std::optional<HttpAnswer> get(const QString& url, double patience) override
    {
        const auto waiting = std::make_shared<Waiting>();
        NSURLSessionDataTask* const task =
            start(requestOf(url, patience), nil, [waiting](const auto& answer) {
                waiting->answer = answer;
                dispatch_semaphore_signal(waiting->done);
            });
        const auto deadline =
            dispatch_time(DISPATCH_TIME_NOW, static_cast<std::int64_t>(patience * NSEC_PER_SEC));
        const bool isLate = dispatch_semaphore_wait(waiting->done, deadline) != 0;
        [task cancel];
        return isLate ? std::nullopt : waiting->answer;
    }
};

} // namespace

std::unique_ptr<HttpCalls> systemHttp()
{
    return std::make_unique<SystemHttp>();
}

} // namespace quindle
