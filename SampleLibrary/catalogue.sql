-- The catalogue as the cloud serves it. Read-only once built; one writer, many readers.
-- Texts are UTF-8. "json" columns hold ready JSON texts, so that a reply is put together without parsing.
PRAGMA user_version = 1;

-- The whole tree, flat: level 0 disciplines, level 1 element kinds, level 2 end categories.
-- Components below a category (its own and those of its descendants) have the positions
-- first_position .. first_position + component_count - 1.
CREATE TABLE category (
    id              INTEGER PRIMARY KEY,
    code            TEXT    NOT NULL UNIQUE,
    parent_id       INTEGER NOT NULL,            -- 0 for a discipline
    parent_code     TEXT    NOT NULL,            -- empty for a discipline
    level           INTEGER NOT NULL,
    major           INTEGER NOT NULL,            -- 0 Plumbing, 1 Hvac, 2 Electrical
    kind            TEXT    NOT NULL,            -- slug of the element kind; empty for a discipline
    name_zh         TEXT    NOT NULL,
    name_en         TEXT    NOT NULL,
    weight          REAL    NOT NULL,            -- sort weight among all categories
    first_position  INTEGER NOT NULL,
    component_count INTEGER NOT NULL
);

-- Property templates of end categories: {"categoryId":..,"categoryName":..} is added when it is served.
CREATE TABLE property_template (
    category_code   TEXT PRIMARY KEY,
    definitions_zh  TEXT NOT NULL,               -- JSON array of parameter definitions, display texts in Chinese
    definitions_en  TEXT NOT NULL                -- the same definitions in the same order, "name" and display texts in English
) WITHOUT ROWID;

-- Placeholder drawings; view 0 plan, 1 elevation, 2 profile.
CREATE TABLE legend (
    id              INTEGER PRIMARY KEY,
    category_code   TEXT    NOT NULL,
    view            INTEGER NOT NULL,
    name_zh         TEXT    NOT NULL,
    name_en         TEXT    NOT NULL,
    thumbnail       TEXT    NOT NULL,            -- path below static/
    standard_source TEXT    NOT NULL
);
CREATE INDEX legend_by_category ON legend (category_code, view);

-- How catalogue categories map onto the component editor's.
CREATE TABLE category_mapping (
    category_id                  INTEGER PRIMARY KEY,
    category_code                TEXT    NOT NULL,
    component_editor_category_id TEXT    NOT NULL,
    names                        TEXT    NOT NULL,   -- JSON array of texts
    major                        INTEGER NOT NULL
);

CREATE TABLE component (
    position        INTEGER PRIMARY KEY,         -- dense, depth-first by category
    id              TEXT    NOT NULL UNIQUE,
    version         INTEGER NOT NULL,
    category_code   TEXT    NOT NULL,
    name_zh         TEXT    NOT NULL,
    name_en         TEXT    NOT NULL,
    search          TEXT    NOT NULL,            -- lower-cased names, id, codes and sizes, for keyword search
    thumbnail       TEXT    NOT NULL,            -- path below static/, the 128-pixel picture
    status          TEXT    NOT NULL,
    thumbnail_sizes TEXT    NOT NULL,            -- JSON: [{"size":"64","thumbnails":["..."]}, ...]
    family_types    TEXT    NOT NULL             -- JSON: [{"name":"DN50","values":["50",null,...]}, ...], values in the order
                                                 -- of the category's property template, null where not given
);

CREATE TABLE project (
    id              TEXT PRIMARY KEY,
    name_zh         TEXT NOT NULL,
    name_en         TEXT NOT NULL
) WITHOUT ROWID;

-- A project's library: components taken from the catalogue under ids of their own.
CREATE TABLE project_component (
    project_id           TEXT    NOT NULL,
    id                   TEXT    NOT NULL,
    public_component_id  TEXT    NOT NULL,
    version              INTEGER NOT NULL,       -- may lie behind the catalogue's
    status               TEXT    NOT NULL,
    position             INTEGER NOT NULL,       -- that of the public component: the same order and ranges
    PRIMARY KEY (project_id, id)
) WITHOUT ROWID;
CREATE UNIQUE INDEX project_component_by_position ON project_component (project_id, position);
CREATE UNIQUE INDEX project_component_by_public_id ON project_component (project_id, public_component_id);
