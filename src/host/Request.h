// A function that a lower floor may call and a higher floor provides.
#pragma once

#include <concepts>
#include <functional>
#include <type_traits>
#include <utility>

template <class Signature>
class Request;

// Empty until the wiring assigns a function. Calling an empty request does nothing and returns a default
// value.
template <class Result, class... Arguments>
class Request<Result(Arguments...)> {
public:
    Request() = default;

    template <class Function>
    requires(!std::same_as<std::remove_cvref_t<Function>, Request>) Request& operator=(Function&& function) {
        function_ = std::forward<Function>(function);
        return *this;
    }

    // Whether a function was assigned, for callers whose arguments are expensive to compute.
    explicit operator bool() const { return static_cast<bool>(function_); }

    Result operator()(Arguments... arguments) const {
        return function_ ? function_(std::forward<Arguments>(arguments)...) : Result();
    }

private:
    std::function<Result(Arguments...)> function_;
};
