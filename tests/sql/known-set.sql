-- Eight bridges whose answers are worked out by hand in expected.txt. US units; a column that no question reads is NULL.
--   a passes with 4 % in reserve; b fails in its cap; c fails under AREMA in piles; d passes under AREMA;
--   e fails under AREMA, has data with errors and one case that did not converge; f has no combinations; g has limit 0.9;
--   h has no element with a ratio, and so no verdict.
INSERT INTO projects (project, title, code, cases, converged, chosen, "limit", dc, passes, errors, warnings, results_time,
    program_version, tables_version) VALUES
    ('a', 'Ash Creek', 'AASHTO-LRFD', 10, 10, 10, 1.0, 0.96, 1, 0, 0, '2024-03-01T08:00:00Z', '1.0.0', 1),
    ('b', 'Birch Road', 'AASHTO-LRFD', 10, 10, 10, 1.0, 1.25, 0, 0, 1, '2024-07-01T08:00:00Z', '1.0.0', 1),
    ('c', 'Cedar Yard', 'AREMA', 8, 8, 8, 1.0, 1.5, 0, 0, 0, '2025-01-01T08:00:00Z', '1.0.0', 1),
    ('d', 'Dogwood Line', 'AREMA', 8, 8, 8, 1.0, 0.5, 1, 0, 0, '2025-01-01T08:00:00Z', '1.0.0', 1),
    ('e', 'Elm Trestle', 'AREMA', 8, 7, 7, 1.0, 1.1, 0, 2, 1, '2023-01-01T08:00:00Z', '1.0.0', 1),
    ('f', 'Fir Quay', NULL, 4, 4, 2, 1.0, 0.25, 1, 0, 0, '2025-06-01T08:00:00Z', '1.0.0', 1),
    ('g', 'Gum Street', 'AASHTO-LFD', 6, 6, 6, 0.9, 0.875, 1, 0, 0, '2025-06-01T08:00:00Z', '1.0.0', 1),
    ('h', 'Hazel Bridge', 'AREMA', 2, 2, 2, 1.0, NULL, NULL, 1, 0, '2024-06-01T08:00:00Z', '1.0.0', 1);

INSERT INTO verdict (project, substructure, family, dc, place, "case", limit_state, "limit", ends, ends_over, passes) VALUES
    ('a', 1, 'pile', 0.5, 'pile 1 head', 1, 'STRENGTH-I', 1.0, 40, 0, 1),
    ('a', 1, 'cap', 0.96, 'Col 1 CL', 2, 'STRENGTH-I', 1.0, 20, 0, 1),
    ('b', 1, 'pile', 1.125, 'pile 3 head', 4, 'EXTREME-I', 1.0, 40, 2, 0),
    ('b', 1, 'cap', 1.25, 'Col 2 CL', 2, 'STRENGTH-I', 1.0, 20, 3, 0),
    ('b', 2, 'cap', 0.75, 'Col 1 CL', 2, 'STRENGTH-I', 1.0, 20, 0, 1),
    ('c', 1, 'pile', 1.5, 'pile 2 head', 6, 'LFD-GROUP-V', 1.0, 60, 7, 0),
    ('c', 1, 'cap', 0.875, 'Pil 2 CL', 3, 'LFD-GROUP-I', 1.0, 16, 0, 1),
    ('d', 1, 'pile', 0.5, 'pile 1 head', 1, 'LFD-GROUP-I', 1.0, 60, 0, 1),
    ('d', 1, 'cap', 0.5, 'Brg 1', 1, 'LFD-GROUP-I', 1.0, 16, 0, 1),
    ('e', 1, 'pile', 1.1, 'pile 4 head', 7, NULL, 1.0, 60, 1, 0),
    ('f', 1, 'pile', 0.25, 'pile 1 head', 1, NULL, 1.0, 24, 0, 1),
    ('g', 1, 'cap', 0.875, 'Col 1 CL', 5, 'GROUP-I', 0.9, 20, 0, 1),
    ('g', 1, 'column', 0.625, 'Col 1 foot', 5, 'GROUP-I', 0.9, 12, 0, 1);

INSERT INTO findings (project, finding, code, severity, file, text, count) VALUES
    ('b', 1, 'incomplete-trials', 'warning', 'b.PEL', '2 of 8 trials are incomplete', 2),
    ('e', 1, 'incomplete-trials', 'warning', 'e.PEL', '1 of 8 trials is incomplete', 1),
    ('e', 2, 'missing-records', 'error', 'e.vmd', '5 records are missing', 5),
    ('e', 3, 'not-finite', 'error', 'e.vmd', '3 forces are not finite', 3),
    ('f', 1, 'no-combinations', 'note', 'f.CMB', 'there are no combinations', 1),
    ('h', 1, 'missing-records', 'error', 'h.vmd', '2 records are missing', 2);

INSERT INTO pile_axial (project, substructure, pile, class, tension, tension_limit_state, compression,
    compression_limit_state) VALUES
    ('a', 1, 1, 'strength', NULL, NULL, -200, 'STRENGTH-I'),
    ('a', 1, 2, 'strength', 50, 'STRENGTH-III', -150, 'STRENGTH-I'),
    ('b', 1, 3, 'strength', 60, 'STRENGTH-III', -300, 'STRENGTH-I'),
    ('b', 1, 3, 'extreme', 90, 'EXTREME-I', -350, 'EXTREME-I'),
    ('c', 1, 2, 'load factor design', 50.5, 'LFD-GROUP-V', -400, 'LFD-GROUP-V'),
    ('c', 1, 3, 'load factor design', 10, 'LFD-GROUP-V', -399, 'LFD-GROUP-I'),
    ('d', 1, 1, 'load factor design', NULL, NULL, NULL, NULL);
