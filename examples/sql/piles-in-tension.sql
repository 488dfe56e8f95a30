-- Pile heads with more than 50 kips of tension, in whatever units the database has.
WITH kip(size) AS (SELECT CASE value WHEN 'us' THEN 1.0 ELSE 4.4482216152605 END FROM versions WHERE name = 'units')
SELECT a.project, a.substructure, a.pile, max(a.tension / kip.size) AS kips, a.tension_limit_state AS limit_state
FROM pile_axial AS a, kip
WHERE a.tension > 50 * kip.size
GROUP BY a.project, a.substructure, a.pile
ORDER BY kips DESC, a.project, a.substructure, a.pile;
