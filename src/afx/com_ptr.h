// Owners of the platform's counted objects.
#pragma once

#include <memory>
#include <unknwn.h>

struct release_object {
    void operator()(IUnknown* object) const { object->Release(); }
};
template <class Interface> using com_ptr = std::unique_ptr<Interface, release_object>;
