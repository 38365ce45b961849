#include "host/readers/xmppacket.h"

#include <array>
#include <string_view>

#include "host/readers/metafields.h"
#include "host/readers/namespaces.h"
#include "host/readers/xmlutil.h"

namespace xmp {

namespace {

constexpr std::array<const Property*, 7> kRead = {&title,    &creator,    &description, &subject,
                                                  &keywords, &createDate, &modifyDate};

bool Matches(const Property& property, const std::string& uri, std::string_view local)
{
    return local == property.local && uri == property.uri;
}

// The local name of a prefixed attribute; empty for one without prefix.
std::string_view AttributeLocal(pugi::xml_attribute attribute)
{
    const std::string_view name = attribute.name();
    const size_t colon = name.find(':');
    return colon == std::string_view::npos ? std::string_view() : name.substr(colon + 1);
}

// The rdf:RDF element: the root itself or a child of it (x:xmpmeta).
pugi::xml_node RdfElement(const pugi::xml_document& doc)
{
    const pugi::xml_node root = doc.document_element();
    if (xmlutil::Is(root, ns::rdf, "RDF"))
        return root;
    return xmlutil::Child(root, ns::rdf, "RDF");
}

std::string Trimmed(std::string text)
{
    const size_t start = text.find_first_not_of(" \t\r\n");
    if (start == std::string::npos)
        return {};
    return text.substr(start, text.find_last_not_of(" \t\r\n") - start + 1);
}

// The text of a property element: the default alternative, the joined items, or its text.
std::string ValueOf(pugi::xml_node element)
{
    for (pugi::xml_node container : element.children()) {
        if (container.type() != pugi::node_element || xmlutil::NamespaceOf(container) != ns::rdf)
            continue;
        const std::string_view kind = xmlutil::LocalName(container);
        std::string joined, firstAlt;
        for (pugi::xml_node item : container.children()) {
            if (!xmlutil::Is(item, ns::rdf, "li"))
                continue;
            const std::string text = Trimmed(xmlutil::Text(item));
            if (kind == "Alt") {
                if (std::string_view(item.attribute("xml:lang").value()) == "x-default")
                    return text;
                if (firstAlt.empty())
                    firstAlt = text;
            } else if (!text.empty()) {
                joined += joined.empty() ? text : ", " + text;
            }
        }
        return kind == "Alt" ? firstAlt : joined;
    }
    return Trimmed(xmlutil::Text(element));
}

std::string& FieldOf(Fields& fields, const Property& property)
{
    if (&property == &title)
        return fields.title;
    if (&property == &creator)
        return fields.creator;
    if (&property == &description)
        return fields.description;
    if (&property == &subject)
        return fields.subject;
    if (&property == &keywords)
        return fields.keywords;
    if (&property == &createDate)
        return fields.createDate;
    return fields.modifyDate;
}

// The prefix bound to `uri` at `node` or above; empty if none.
std::string PrefixInScope(pugi::xml_node node, const char* uri)
{
    for (pugi::xml_node n = node; n && n.type() == pugi::node_element; n = n.parent()) {
        for (pugi::xml_attribute a : n.attributes()) {
            const std::string_view name = a.name();
            if (name.substr(0, 6) == "xmlns:" && std::string_view(a.value()) == uri)
                return std::string(name.substr(6));
        }
    }
    return {};
}

std::string BoundPrefix(pugi::xml_node description, const char* uri, const char* preferred)
{
    std::string prefix = PrefixInScope(description, uri);
    if (prefix.empty())
        prefix = xmlutil::PrefixFor(description, uri, preferred);
    return prefix;
}

void FillElement(pugi::xml_node element, const Property& property, const std::string& value)
{
    while (element.first_child())
        element.remove_child(element.first_child());
    if (property.shape == Shape::Text) {
        xmlutil::SetText(element, value);
        return;
    }
    const std::string rdf = BoundPrefix(element, ns::rdf, "rdf") + ":";
    const char* kind = property.shape == Shape::Alt ? "Alt" : property.shape == Shape::Bag ? "Bag" : "Seq";
    pugi::xml_node container = element.append_child((rdf + kind).c_str());
    std::vector<std::string> items = {value};
    if (property.shape == Shape::Bag)
        items = SplitKeywords(value);
    for (const std::string& item : items) {
        pugi::xml_node li = container.append_child((rdf + "li").c_str());
        if (property.shape == Shape::Alt)
            li.append_attribute("xml:lang") = "x-default";
        xmlutil::SetText(li, item);
    }
}

void Apply(pugi::xml_node rdf, const Change& change)
{
    const Property& property = change.property;
    bool done = change.value.empty();
    pugi::xml_node firstDescription;
    for (pugi::xml_node block : rdf.children()) {
        if (!xmlutil::Is(block, ns::rdf, "Description"))
            continue;
        if (!firstDescription)
            firstDescription = block;
        for (pugi::xml_attribute a = block.first_attribute(); a;) {
            const pugi::xml_attribute next = a.next_attribute();
            if (Matches(property, xmlutil::NamespaceOf(a, block), AttributeLocal(a))) {
                if (!done && property.shape == Shape::Text) {
                    a.set_value(change.value.c_str());
                    done = true;
                } else {
                    block.remove_attribute(a);
                }
            }
            a = next;
        }
        for (pugi::xml_node element = block.first_child(); element;) {
            const pugi::xml_node next = element.next_sibling();
            if (element.type() == pugi::node_element &&
                Matches(property, xmlutil::NamespaceOf(element), xmlutil::LocalName(element))) {
                if (!done) {
                    FillElement(element, property, change.value);
                    done = true;
                } else {
                    block.remove_child(element);
                }
            }
            element = next;
        }
    }
    if (done)
        return;
    if (!firstDescription) {
        const std::string rdfPrefix = BoundPrefix(rdf, ns::rdf, "rdf");
        firstDescription = rdf.append_child((rdfPrefix + ":Description").c_str());
        firstDescription.append_attribute((rdfPrefix + ":about").c_str()) = "";
    }
    const std::string prefix = BoundPrefix(firstDescription, property.uri, property.prefix);
    FillElement(firstDescription.append_child((prefix + ":" + property.local).c_str()), property, change.value);
}

}  // namespace

bool Read(const std::string& packet, Fields& fields)
{
    pugi::xml_document doc;
    if (!xmlutil::Parse(packet, doc))
        return false;
    const pugi::xml_node rdf = RdfElement(doc);
    if (!rdf)
        return false;
    for (pugi::xml_node block : rdf.children()) {
        if (!xmlutil::Is(block, ns::rdf, "Description"))
            continue;
        for (const Property* property : kRead) {
            std::string& field = FieldOf(fields, *property);
            for (pugi::xml_attribute a : block.attributes()) {
                if (field.empty() && Matches(*property, xmlutil::NamespaceOf(a, block), AttributeLocal(a)))
                    field = Trimmed(a.value());
            }
            for (pugi::xml_node element : block.children()) {
                if (field.empty() && element.type() == pugi::node_element &&
                    Matches(*property, xmlutil::NamespaceOf(element), xmlutil::LocalName(element)))
                    field = ValueOf(element);
            }
        }
    }
    return true;
}

bool Update(std::string& packet, const std::vector<Change>& changes)
{
    pugi::xml_document doc;
    if (!xmlutil::Parse(packet, doc, true))
        return false;
    const pugi::xml_node rdf = RdfElement(doc);
    if (!rdf)
        return false;
    for (const Change& change : changes)
        Apply(rdf, change);
    packet = xmlutil::Save(doc);
    return true;
}

std::string NewPacket()
{
    return std::string("<?xpacket begin=\"\xEF\xBB\xBF\" id=\"W5M0MpCehiHzreSzNTczkc9d\"?>") + "<x:xmpmeta xmlns:x=\"" +
           ns::xmpMeta + "\"><rdf:RDF xmlns:rdf=\"" + ns::rdf + "\"><rdf:Description rdf:about=\"\" xmlns:dc=\"" +
           ns::dc + "\" xmlns:xmp=\"" + ns::xmp + "\" xmlns:pdf=\"" + ns::pdf +
           "\"/></rdf:RDF></x:xmpmeta><?xpacket end=\"w\"?>";
}

}  // namespace xmp
