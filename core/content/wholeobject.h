#pragma once

#include "core/content/contentobject.h"

namespace vl::core {

/// A kind of content whose fields form one record that is edited as a whole.
template<typename Data, ContentKind Kind>
class WholeObject final : public ContentObject
{
public:
    static constexpr ContentKind staticKind = Kind;

    explicit WholeObject(const ContentId &id, Data data = {})
        : ContentObject(id, Kind)
        , m_data(std::move(data))
    {
    }

    const Data &data() const { return m_data; }
    void setData(const Data &data) { m_data = data; }

private:
    Data m_data;
};

} // namespace vl::core
