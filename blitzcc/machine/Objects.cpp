// The machine's objects: a linked list for each type, handles and For Each.
// An object deleted under a For Each loop stays linked until the loop has moved on from it.
#include "machine/Machine.h"

namespace blitz {

Machine::Object* Machine::find(Value value) {
    const auto slot = static_cast<uint32_t>(value.object);
    if (slot == 0) return nullptr;
    Object& object = objects_[slot];
    return object.alive && object.generation == value.object >> 32 ? &object : nullptr;
}

Machine::Object& Machine::need(Value value) {
    Object* const object = find(value);
    if (!object) fault("Object does not exist");
    return *object;
}

Value Machine::idOf(uint32_t slot) const {
    Value value{};
    if (slot != 0) value.object = static_cast<uint64_t>(objects_[slot].generation) << 32 | slot;
    return value;
}

Value Machine::create(int32_t type) {
    const TypeCode& code = code_.types[static_cast<size_t>(type)];
    TypeList& list = types_[static_cast<size_t>(type)];
    uint32_t slot = static_cast<uint32_t>(objects_.size());
    if (!list.unused.empty()) {
        slot = list.unused.back();
        list.unused.pop_back();
    } else {
        Object& object = objects_.emplace_back();
        object.type = type;
        object.fields = std::make_unique<Value[]>(code.fields);
        for (const VectorInfo& info : code.vectors) object.fields[info.slot].vector = makeVector(info);
    }
    objects_[slot].alive = true;
    link(slot, 0);
    return idOf(slot);
}

// Links a slot before another one of its type, or at the end.
void Machine::link(uint32_t slot, uint32_t before) {
    Object& object = objects_[slot];
    TypeList& list = types_[static_cast<size_t>(object.type)];
    object.next = before;
    object.previous = before ? objects_[before].previous : list.last;
    (object.previous ? objects_[object.previous].next : list.first) = slot;
    (before ? objects_[before].previous : list.last) = slot;
}

void Machine::unlink(uint32_t slot) {
    const Object& object = objects_[slot];
    TypeList& list = types_[static_cast<size_t>(object.type)];
    (object.previous ? objects_[object.previous].next : list.first) = object.next;
    (object.next ? objects_[object.next].previous : list.last) = object.previous;
}

void Machine::remove(Value value) {
    Object* const object = find(value);
    if (!object) return;
    const TypeCode& code = code_.types[static_cast<size_t>(object->type)];
    for (const uint32_t field : code.strings) drop(object->fields[field]);
    for (uint32_t field = 0, vector = 0; field < code.fields; ++field) {
        if (vector < code.vectors.size() && code.vectors[vector].slot == field) {
            Vec& items = *object->fields[field].vector;
            clearValues(items.items, items.strings);
            ++vector;
        } else {
            object->fields[field] = {};
        }
    }
    if (object->handle) handles_.erase(object->handle);
    object->handle = 0;
    object->alive = false;
    if (object->pins != 0) return;
    const auto slot = static_cast<uint32_t>(value.object);
    unlink(slot);
    ++object->generation;
    types_[static_cast<size_t>(object->type)].unused.push_back(slot);
}

void Machine::removeAll(int32_t type) {
    uint32_t next = 0;
    for (uint32_t slot = types_[static_cast<size_t>(type)].first; slot != 0; slot = next) {
        next = objects_[slot].next;
        remove(idOf(slot));
    }
}

// The next living object from a slot on, the slot itself included.
Value Machine::neighbour(uint32_t slot, bool forward) const {
    while (slot != 0 && !objects_[slot].alive) slot = forward ? objects_[slot].next : objects_[slot].previous;
    return idOf(slot);
}

void Machine::insert(Value value, Value place, bool before) {
    need(value);
    const Object& target = need(place);
    const auto slot = static_cast<uint32_t>(value.object);
    if (value.object == place.object) return;
    const auto placeSlot = static_cast<uint32_t>(place.object);
    unlink(slot);
    link(slot, before ? placeSlot : target.next);
}

int32_t Machine::handleOf(Value value) {
    Object* const object = find(value);
    if (!object) return 0;
    if (object->handle == 0) {
        object->handle = ++lastHandle_;
        handles_[object->handle] = value.object;
    }
    return object->handle;
}

Value Machine::objectOf(int32_t handle, int32_t type) {
    Value value{};
    const auto entry = handles_.find(handle);
    if (entry == handles_.end()) return value;
    value.object = entry->second;
    const Object* const object = find(value);
    return object && object->type == type ? value : Value{};
}

// Moves the pin of a loop's hidden slot to another object; the old object may be freed now.
void Machine::pin(Value& hidden, uint32_t slot) {
    const auto old = static_cast<uint32_t>(hidden.object);
    if (slot != 0) ++objects_[slot].pins;
    hidden.object = slot;
    if (old == 0) return;
    Object& object = objects_[old];
    if (--object.pins != 0 || object.alive) return;
    unlink(old);
    ++object.generation;
    types_[static_cast<size_t>(object.type)].unused.push_back(old);
}

// The step of a For Each loop: pushes the object to visit and 1, or 0 at the end.
void Machine::each(const Ins& ins, Value*& top, Value* slots) {
    Value& hidden = slots[ins.x];
    uint32_t slot = types_[static_cast<size_t>(ins.a)].first;
    if (ins.op == Op::EachNext) {
        // The loop continues from its variable, or from its own place if that object is gone.
        const Value variable = *--top;
        const auto from =
            find(variable) ? static_cast<uint32_t>(variable.object) : static_cast<uint32_t>(hidden.object);
        slot = from ? objects_[from].next : 0;
    }
    const Value found = neighbour(slot, true);
    pin(hidden, static_cast<uint32_t>(found.object));
    if (found.object != 0) *top++ = found;
    *top = {};
    top++->integer = found.object != 0;
}

}
