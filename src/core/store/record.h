// What all small linked records share: the two-faced constructor, appending, and the release of a list.
#pragma once

namespace varlo {

// Null: a new zeroed record, owned by the caller. A record: its texts are released and it is zeroed,
// links included.
template <typename Record>
Record* RecordInit(Record* record) {
  if (record == nullptr) return new Record();
  *record = Record();
  return record;
}

// Deletes the records from `head` along next; `beforeEach` sees each one while it is still whole.
template <typename Record, typename Visit>
void RecordListFree(Record* head, Visit beforeEach) {
  while (head != nullptr) {
    Record* next = head->next;
    beforeEach(*head);
    delete head;
    head = next;
  }
}

template <typename Record>
void RecordListFree(Record* head) {
  RecordListFree(head, [](Record&) {});
}

// Puts `record` behind `tail` of the doubly linked list that starts at `head`, and moves both on.
template <typename Record>
void RecordAppend(Record*& head, Record*& tail, Record* record) {
  record->prev = tail;
  (tail == nullptr ? head : tail->next) = record;
  tail = record;
}

// The last record of a list, null for an empty one.
template <typename Record>
Record* RecordLast(Record* head) {
  while (head != nullptr && head->next != nullptr) head = head->next;
  return head;
}

}  // namespace varlo
