// The shape shared by every record class: plain value types with one field per table
// column, in column order, a constructor taking all fields, a getter and a setter per
// field named after the column, and a validity flag that getters of a missing row leave
// false. The shape is written once here as a macro over each record's field list, and
// the same field list drives the generic reading and binding in recordio.h.
//
// A field list is an X-macro:  #define FIELDS_ADRESA(F) F(int, id, Id) F(wxString, ulice, Ulice) ...
// Types: int (keys, references, codes), wxString (text), double (money, rates),
// bool (flags), wxDateTime (dates; an invalid date stands for NULL).
#pragma once

#include <wx/datetime.h>
#include <wx/string.h>

#include <memory>
#include <utility>
#include <vector>

// Marks the end of an all-fields constructor's argument list.
struct RecordEnd {};

#define EVIDA_RECORD_MEMBER(type, name, Name) type m_##name{};
#define EVIDA_RECORD_PARAM(type, name, Name) type name##_,
#define EVIDA_RECORD_INIT(type, name, Name) m_##name(std::move(name##_)),
#define EVIDA_RECORD_ACCESS(type, name, Name)                 \
    const type& name() const { return m_##name; }             \
    void set##Name(const type& value) { m_##name = value; }
#define EVIDA_RECORD_VISIT(type, name, Name) v(#name, m_##name);

// Declares the record class `Record` over table `table` with the fields of `FIELDS`.
#define EVIDA_RECORD(Record, table, FIELDS)                                              \
    class Record {                                                                       \
       public:                                                                           \
        static constexpr const char* TABLE = #table;                                     \
        Record() = default;                                                              \
        explicit Record(FIELDS(EVIDA_RECORD_PARAM) RecordEnd = {})                       \
            : FIELDS(EVIDA_RECORD_INIT) m_valid(true) {}                                 \
        FIELDS(EVIDA_RECORD_ACCESS)                                                      \
        bool isValid() const { return m_valid; }                                         \
        void setValid(bool valid) { m_valid = valid; }                                   \
        /* Calls v(columnName, field) for every field in column order. */                \
        template <class V>                                                               \
        void visit(V&& v) {                                                              \
            FIELDS(EVIDA_RECORD_VISIT)                                                   \
        }                                                                                \
        template <class V>                                                               \
        void visit(V&& v) const {                                                        \
            FIELDS(EVIDA_RECORD_VISIT)                                                   \
        }                                                                                \
                                                                                         \
       private:                                                                          \
        FIELDS(EVIDA_RECORD_MEMBER)                                                      \
        bool m_valid = false;                                                            \
    };                                                                                   \
    using lx##Record##Array = std::vector<std::unique_ptr<Record>>;
