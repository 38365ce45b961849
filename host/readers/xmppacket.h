#pragma once
// An XMP packet's document properties: read from it, set in it in place (everything else
// in the packet stays), or a new packet holding only them.
#include <string>
#include <vector>

namespace xmp {

// How a property holds its value.
enum class Shape {
    Text,  // simple text (pdf:Keywords, xmp:CreateDate)
    Alt,   // language alternatives; the "x-default" one counts (dc:title, dc:description)
    Bag,   // unordered items; set from a ", "-separated list (dc:subject)
    Seq,   // ordered items (dc:creator)
};

struct Property {
    const char* uri;
    const char* prefix;  // used when the packet does not bind the namespace yet
    const char* local;
    Shape shape;
};

inline constexpr Property title{"http://purl.org/dc/elements/1.1/", "dc", "title", Shape::Alt};
inline constexpr Property creator{"http://purl.org/dc/elements/1.1/", "dc", "creator", Shape::Seq};
inline constexpr Property description{"http://purl.org/dc/elements/1.1/", "dc", "description", Shape::Alt};
inline constexpr Property subject{"http://purl.org/dc/elements/1.1/", "dc", "subject", Shape::Bag};
inline constexpr Property keywords{"http://ns.adobe.com/pdf/1.3/", "pdf", "Keywords", Shape::Text};
inline constexpr Property createDate{"http://ns.adobe.com/xap/1.0/", "xmp", "CreateDate", Shape::Text};
inline constexpr Property modifyDate{"http://ns.adobe.com/xap/1.0/", "xmp", "ModifyDate", Shape::Text};

// The fields of a packet, as texts; items of a Bag or Seq joined with ", ".
struct Fields {
    std::string title, creator, description, subject, keywords, createDate, modifyDate;
};

// False when the packet is not well-formed XML or holds no RDF.
bool Read(const std::string& packet, Fields& fields);

struct Change {
    Property property;
    std::string value;  // empty removes the property
};
// Sets each property in the packet where it stands (as element or attribute), or adds
// it to the first description; false, with `packet` unchanged, when it is not XMP.
bool Update(std::string& packet, const std::vector<Change>& changes);
// A packet with an empty description, ready for Update.
std::string NewPacket();

}  // namespace xmp
