/// The manifest's text.
#include "automation/class_table.h"
#include "automation/generated_files.h"
#include "automation/identifiers.h"
#include "values/text.h"

namespace lumtex::automation {

namespace {

/// The system's own marshallers that go by a type library: for tables of functions, and for late-bound calls.
constexpr std::string_view dualMarshaller = "00020424-0000-0000-c000-000000000046";
constexpr std::string_view dispatchMarshaller = "00020420-0000-0000-c000-000000000046";

std::string attribute(std::string_view name, std::string_view value) {
    return " " + std::string(name) + "=\"" + std::string(value) + "\"";
}

std::string braced(std::string_view uuid) {
    return "{" + std::string(uuid) + "}";
}

std::string libraryVersion() {
    return std::to_string(typeLibraryMajor) + "." + std::to_string(typeLibraryMinor);
}

/// What a container may know of the control before it makes one.
std::string classTraits(const ClassDescription& description) {
    if (&description != &listViewClass())
        return "";
    return "\n       " + attribute("miscStatusContent",
                                   "recomposeonresize,cantlinkinside,insideout,activatewhenvisible,"
                                   "setclientsitefirst");
}

std::string classElement(const ClassDescription& description) {
    const std::string name = toUtf8(description.name);
    return "    <comClass" + attribute("clsid", braced(uuidOf(name))) +
           attribute("progid", "LumtexListView." + name) + "\n       " +
           attribute("threadingModel", "Apartment") + attribute("tlbid", braced(uuidOf("LumtexListView"))) +
           classTraits(description) + "/>\n";
}

/// No program asks for a page by name.
std::string pageElement() {
    return "    <comClass" + attribute("clsid", braced(generalPageUuid)) + "\n       " +
           attribute("threadingModel", "Apartment") + "/>\n";
}

std::string interfaceElement(const std::string& name, std::string_view marshaller) {
    return "  <comInterfaceExternalProxyStub" + attribute("name", name) +
           attribute("iid", braced(uuidOf(name))) + "\n     " +
           attribute("tlbid", braced(uuidOf("LumtexListView"))) +
           attribute("proxyStubClsid32", braced(marshaller)) + "/>\n";
}

} // namespace

std::string sideBySideManifest() {
    std::string text = R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>
<!-- Made from the tables in src/automation by scripts/reference; do not edit. -->
<assembly xmlns="urn:schemas-microsoft-com:asm.v1" manifestVersion="1.0">
  <assemblyIdentity type="win32" name="LumtexListView" version=")" +
                       libraryVersion() + ".0.0\"/>\n  <file name=\"LumtexListView.ocx\">\n";
    for (const ClassDescription& description : classTable())
        text += classElement(description);
    text += pageElement();
    text += "    <typelib" + attribute("tlbid", braced(uuidOf("LumtexListView"))) +
            attribute("version", libraryVersion()) + attribute("helpdir", "") + "/>\n  </file>\n";
    for (const ClassDescription& description : classTable())
        text += interfaceElement("_" + toUtf8(description.name), dualMarshaller);
    return text + interfaceElement("__lmListView", dispatchMarshaller) + "</assembly>\n";
}

} // namespace lumtex::automation
