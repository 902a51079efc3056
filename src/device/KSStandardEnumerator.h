#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace ridelog {

/// Walks any collection that has a count and objects by index. What is added meanwhile is walked as well.
/// `Object` is a pointer of some kind; none is a null one.
template <typename Object>
class KSStandardEnumerator {
public:
    /// Holds the collection. `countSelector(collection)` and `objectAtIndexSelector(collection, index)`, also
    /// members of it, are what it is asked.
    template <typename Collection, typename Count, typename ObjectAtIndex>
    KSStandardEnumerator(std::shared_ptr<Collection> collection, Count countSelector,
                         ObjectAtIndex objectAtIndexSelector)
        : _count([collection, countSelector] { return std::invoke(countSelector, *collection); }),
          _objectAtIndex([collection, objectAtIndexSelector](std::size_t index) {
              return std::invoke(objectAtIndexSelector, *collection, index);
          })
    {
    }

    /// None at the end.
    Object nextObject()
    {
        return static_cast<std::size_t>(_position) < _count()
                   ? _objectAtIndex(static_cast<std::size_t>(_position++))
                   : Object();
    }
    /// Those not walked yet.
    std::vector<Object> allObjects()
    {
        std::vector<Object> objects;
        while (auto object = nextObject())
            objects.push_back(std::move(object));
        return objects;
    }

private:
    std::function<std::size_t()> _count;
    std::function<Object(std::size_t)> _objectAtIndex;
    std::int32_t _position = 0;
};

} // namespace ridelog
