-- Which family of members governs, and in how many bridges? Where two have the same ratio, both count.
SELECT v.family, count(DISTINCT v.project) AS bridges, max(v.dc) AS worst
FROM verdict AS v
WHERE v.dc = (SELECT max(w.dc) FROM verdict AS w WHERE w.project = v.project)
GROUP BY v.family
ORDER BY bridges DESC, v.family;
