-- SPDX-License-Identifier: MIT
-- Leads links between the documents to their pages. The variable "pages" of the environment lists the documents that are
-- pages, with a blank after each. What a link to another file says remains, without the link.
local pages = " " .. os.getenv("LUMERIN_PAGES")

local function is_page(name)
    return pages:find(" " .. name .. " ", 1, true) ~= nil
end

function Link(link)
    local path, anchor = link.target:match("^([^#]*)(#?.*)$")
    if path == "" or link.target:match("^https?://") then return nil end
    local name = path:match("([^/]+)%.md$")
    if name and is_page(name) then
        link.target = name .. ".html" .. anchor
        if pandoc.utils.stringify(link.content) == name .. ".md" then link.content = name end
        return link
    end
    return link.content
end

-- A manual page names the others in bold with "(1)".
function Inlines(inlines)
    for i = 1, #inlines - 1 do
        local name = inlines[i].t == "Strong" and pandoc.utils.stringify(inlines[i])
        local rest = inlines[i + 1].t == "Str" and inlines[i + 1].text:match("^%(1%)(.*)$")
        if name and rest and is_page(name) then
            inlines[i] = pandoc.Link(name, name .. ".html")
            inlines[i + 1] = pandoc.Str(rest)
        end
    end
    return inlines
end
