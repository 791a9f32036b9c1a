#pragma once

#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "platform/base/RuntimeError.h"

namespace lyrebrook {

/// Like controls under one name with an index. The elements that the form starts with are made in the constructor,
/// others at run time by `load`. An index without an element is a `RuntimeError`.
template <class T>
class ControlArray {
  public:
    using Maker = std::function<std::unique_ptr<T>(int index)>;

    /// No element yet.
    explicit ControlArray(Maker maker) : maker_(std::move(maker)) {}
    /// The elements `first` to `last`, both included.
    ControlArray(int first, int last, Maker maker) : maker_(std::move(maker)) {
        for (int index = first; index <= last; ++index) add(index);
    }

    /// Makes element `index`, not visible at first. An element that is there stays as it is.
    T& load(int index) {
        if (has(index)) return *elements_.at(index);
        T& element = add(index);
        element.setVisible(false);
        return element;
    }

    bool has(int index) const { return elements_.contains(index); }
    int Count() const { return static_cast<int>(elements_.size()); }
    /// Highest index, -1 for an empty array.
    int UBound() const { return elements_.empty() ? -1 : elements_.rbegin()->first; }

    T& operator[](int index) const {
        const auto found = elements_.find(index);
        if (found == elements_.end())
            throw RuntimeError(RuntimeErrorNumber::subscriptOutOfRange, "Control array element doesn't exist");
        return *found->second;
    }

    /// Does `action` with every element, also with those that are made later.
    void forEach(std::function<void(int index, T& element)> action) {
        for (auto& [index, element] : elements_) action(index, *element);
        actions_.push_back(std::move(action));
    }

  private:
    T& add(int index) {
        T& element = *(elements_[index] = maker_(index));
        for (const auto& action : actions_) action(index, element);
        return element;
    }

    Maker maker_;
    std::vector<std::function<void(int, T&)>> actions_;
    std::map<int, std::unique_ptr<T>> elements_;
};

}  // namespace lyrebrook
