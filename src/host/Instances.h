// The single instance of the program, and the channel on which a second start hands over its command line.
#pragma once

#include <functional>
#include <string>

class Instances {
public:
    virtual ~Instances() = default;

    // Whether another process of this program runs for this user. The first caller becomes the owner.
    virtual bool AnotherRuns() = 0;
    // Opens the channel and returns the text that names it for others, to be stored.
    virtual std::string Publish(std::function<void(const std::string&)> received) = 0;
    // Lets a moment pass in which an instance that is just starting may open its channel.
    virtual void WaitForPublish() = 0;
    // Delivers a text to the channel of that name. False when nobody listens there.
    virtual bool Send(const std::string& handle, const std::string& text) = 0;
    // Closes the channel, after it has received what was already sent.
    virtual void Withdraw() = 0;
};
